// The icon resource holds every icon in every size and density, and nothing else.

#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QImage>

#include <algorithm>

namespace {

const QStringList keys =
    QStringLiteral("chevron-up chevron-down chevron-left chevron-right arrow-up arrow-down arrow-left arrow-right "
                   "corner-flag check dash plus minus close clear drag-handle more menu apps search filter sort-up "
                   "sort-down edit delete copy paste undo redo refresh save open new import export settings info "
                   "question warning error success lock unlock eye eye-off user key home back pin unpin window "
                   "fullscreen zoom-in zoom-out zoom-fit zoom-selection hand hand-grab pointer grid snap align-left "
                   "align-hcenter align-right align-top align-vcenter align-bottom distribute-h distribute-v power "
                   "standby mute loudspeaker solo headphones microphone line-input line-output phantom-power polarity "
                   "delay link unlink fader meter eq shelf crossover fir limiter compressor gate ducker agc anc matrix "
                   "mixer amplifier device network online offline temperature clock preset scene group identify "
                   "firmware theme-light theme-dark")
        .split(u' ');

QString fileName(const QString &key, int size, int scale)
{
    return QStringLiteral("%1_%2x%2%3.png").arg(key).arg(size).arg(scale == 2 ? "@2x" : "");
}

// Number of pixels whose alpha lies in the given range.
int countAlpha(const QImage &image, int least, int most)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const int alpha = qAlpha(image.pixel(x, y));
            count += alpha >= least && alpha <= most;
        }
    return count;
}

// A coloured or grey pixel would survive as a stain in the tinted icon.
bool isWhite(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qAlpha(pixel) > 0 && std::min({qRed(pixel), qGreen(pixel), qBlue(pixel)}) < 250)
                return false;
        }
    return true;
}

} // namespace

class tst_Icons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void icon_data()
    {
        const Rows<QString> row;
        for (const QString &key : keys)
            row(qPrintable(key), key);
    }

    void icon()
    {
        const auto &[key] = Rows<QString>::current();
        for (const int size : {8, 16, 24, 32, 48}) {
            for (const int scale : {1, 2}) {
                const QString name = fileName(key, size, scale);
                const QImage image(":/icons/" + name);
                QVERIFY2(!image.isNull(), qPrintable(name));
                QCOMPARE(image.size(), QSize(size, size) * scale);
                QVERIFY2(isWhite(image), qPrintable(name + " is not white"));

                // Thin strokes blur at 8 and 16 pixels, so a solid pixel is only due from 24 up.
                const int solid = size >= 24 ? 250 : 90;
                QVERIFY2(countAlpha(image, solid, 255) > 0, qPrintable(name + " is too faint"));
                QVERIFY2(countAlpha(image, 0, 0) > 0, qPrintable(name + " has no ground"));

                // The large drawings keep a margin; ink at the rim means a clipped stroke.
                if (size >= 24) {
                    const QRect inner = image.rect().marginsRemoved({scale, scale, scale, scale});
                    QCOMPARE(countAlpha(image, 128, 255), countAlpha(image.copy(inner), 128, 255));
                }
            }
        }
    }

    // Guards against a drawing copied as a start for another one and then forgotten.
    void drawingsDiffer()
    {
        for (const int size : {16, 48}) {
            for (qsizetype i = 0; i < keys.size(); ++i) {
                const QImage image(":/icons/" + fileName(keys[i], size, 1));
                for (qsizetype j = 0; j < i; ++j)
                    QVERIFY2(image != QImage(":/icons/" + fileName(keys[j], size, 1)),
                             qPrintable(keys[i] + " looks like " + keys[j]));
            }
        }
    }

    void nothingElseIsShipped()
    {
        QStringList expected;
        for (const QString &key : keys)
            for (const int size : {8, 16, 24, 32, 48})
                for (const int scale : {1, 2})
                    expected << fileName(key, size, scale);
        QStringList unexpected = QDir(":/icons").entryList(QDir::AllEntries);
        unexpected.removeIf([&](const QString &name) { return expected.contains(name); });
        QCOMPARE(unexpected, QStringList());
    }
};

template struct TestClass<tst_Icons>;
#include "tst_Icons.moc"
