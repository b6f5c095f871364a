// Build tool: renders the icon drawings to the PNG files of the icon resource.
//
//     tamble-rasterise-icons <svg folder> <output folder>

#include <QDir>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

#include <algorithm>
#include <initializer_list>

namespace {

int parserComplaints = 0;

int fail(const QString &message)
{
    QTextStream(stderr) << "tamble-rasterise-icons: " << message << Qt::endl;
    return 1;
}

// The SVG parser drops what it does not understand and still reports success;
// a drawing with a hole in it has to stop the build all the same.
void countComplaints(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        ++parserComplaints;
    QTextStream(stderr) << message << Qt::endl;
}

QImage render(QSvgRenderer &drawing, int pixels)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    // The default resolution follows the machine's screen and ends up in the file.
    image.setDotsPerMeterX(3780);
    image.setDotsPerMeterY(3780);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter, QRectF(0, 0, pixels, pixels));
    return image;
}

bool isEmpty(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        if (std::any_of(line, line + image.width(), [](QRgb pixel) { return qAlpha(pixel) > 0; }))
            return false;
    }
    return true;
}

int renderDrawing(const QString &svgPath, const QString &outputPrefix, std::initializer_list<int> sizes)
{
    parserComplaints = 0;
    QSvgRenderer drawing(svgPath);
    if (!drawing.isValid() || parserComplaints > 0)
        return fail(QStringLiteral("cannot read %1").arg(svgPath));

    for (const int size : sizes) {
        for (const int scale : {1, 2}) {
            const QImage image = render(drawing, size * scale);
            if (isEmpty(image))
                return fail(QStringLiteral("%1 shows nothing").arg(svgPath));
            const QString density = scale == 2 ? QStringLiteral("@2x") : QString();
            const QString pngPath = QStringLiteral("%1_%2x%2%3.png").arg(outputPrefix, QString::number(size), density);
            QImageWriter writer(pngPath, "png");
            writer.setCompression(100);
            if (!writer.write(image))
                return fail(QStringLiteral("cannot write %1: %2").arg(pngPath, writer.errorString()));
        }
    }
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 3)
        return fail(QStringLiteral("usage: tamble-rasterise-icons <svg folder> <output folder>"));
    qInstallMessageHandler(countComplaints);

    const QDir source(QString::fromLocal8Bit(argv[1]));
    const QDir small(source.filePath(QStringLiteral("small")));
    const QDir output(QString::fromLocal8Bit(argv[2]));
    if (!output.mkpath(QStringLiteral(".")))
        return fail(QStringLiteral("cannot create %1").arg(output.path()));

    const QStringList filter{QStringLiteral("*.svg")};
    const QStringList drawings = source.entryList(filter, QDir::Files, QDir::Name);
    const QStringList smallDrawings = small.entryList(filter, QDir::Files, QDir::Name);
    if (drawings.isEmpty())
        return fail(QStringLiteral("no drawings in %1").arg(source.path()));
    for (const QString &name : smallDrawings) {
        if (!drawings.contains(name))
            return fail(QStringLiteral("%1 has no drawing for the large sizes").arg(small.filePath(name)));
    }

    for (const QString &name : drawings) {
        const QString prefix = output.filePath(name.chopped(4));
        const QDir &forSmallSizes = smallDrawings.contains(name) ? small : source;
        if (const int error = renderDrawing(forSmallSizes.filePath(name), prefix, {8, 16}))
            return error;
        if (const int error = renderDrawing(source.filePath(name), prefix, {24, 32, 48}))
            return error;
    }
    return 0;
}
