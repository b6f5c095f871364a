#include "scenegraph/PictureCanvas.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <vector>

using namespace Qt::StringLiterals;
using namespace tamble::client;

namespace {

using Triangle = std::array<CanvasVertex, 3>;

/// One letter a pixel: "." nothing, "+" half strength, "#" full or drawn twice, "?" else.
QString textOf(const QImage &image)
{
    QString text;
    for (int row = 0; row < image.height(); ++row) {
        for (int column = 0; column < image.width(); ++column) {
            const int alpha = image.pixelColor(column, row).alpha();
            text += alpha == 0 ? u'.' : alpha == 128 ? u'+' : alpha == 255 || alpha == 192 ? u'#' : u'?';
        }
        text += u'/';
    }
    return text.chopped(1);
}

} // namespace

/// What is drawn without a graphics card, pixel by pixel.
class tst_PictureCanvas : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void coversEachPixelOnce_data()
    {
        const auto row = rowsOf([](const QList<Triangle> &triangles, const QString &picture) {
            PictureCanvas canvas({0, 0, 4, 4}, 1.0);
            canvas.setColor(QColor(255, 0, 0, 128));
            for (const Triangle &triangle : triangles)
                canvas.fillTriangle(triangle);
            QCOMPARE(textOf(canvas.image()), picture);
        });
        row("halves of a square", {{{{0, 0}, {4, 0}, {0, 4}}}, {{{4, 0}, {0, 4}, {4, 4}}}}, u"++++/++++/++++/++++"_s);
        row("around a middle, turning either way",
            {{{{0, 0}, {4, 0}, {1.5, 2.5}}},
             {{{1.5, 2.5}, {4, 4}, {4, 0}}},
             {{{4, 4}, {0, 4}, {1.5, 2.5}}},
             {{{0, 0}, {1.5, 2.5}, {0, 4}}}},
            u"++++/++++/++++/++++"_s);
        row("middles decide", {{{{0.6, 0.4}, {2.6, 0.4}, {0.6, 8.0}}}}, u".++./.+../.+../.+.."_s);
        row("cut at the picture's edges", {{{{-1e6, -1e6}, {1e6, 2.0}, {-1e6, 2.0}}}}, u"++++/++++/..../...."_s);
        row("without area", {{{{0, 0}, {4, 4}, {2, 2}}}, {{{1, 1}, {1, 1}, {1, 1}}}}, u"..../..../..../...."_s);
        row("far beyond any picture", {{{{-1e38, 1.0}, {1e38, 1.0}, {0.0, 1e38}}}}, u"..../++++/++++/++++"_s);
    }
    void coversEachPixelOnce() { checkRow(); }

    void strengths()
    {
        // At the middles of four pixels the first value is -1.5, -0.5, 0.5 and 1.5, the second one 1.
        const std::vector<CanvasVertex> strip{{0, 0, -2, 1}, {0, 1, -2, 1}, {4, 0, 2, 1}, {4, 1, 2, 1}};
        const auto drawn = [&](CanvasStrength strength, const QColor &color) {
            PictureCanvas canvas({0, 0, 4, 1}, 1.0);
            canvas.setColor(color, strength);
            canvas.fillStrip<CanvasVertex>(strip, [](const CanvasVertex &vertex) { return vertex; });
            return canvas.image();
        };
        QCOMPARE(textOf(drawn(CanvasStrength::Coverage, Qt::black)), u".++."_s);
        QCOMPARE(textOf(drawn(CanvasStrength::Product, Qt::black)), u"..+#"_s);
        QCOMPARE(drawn(CanvasStrength::Full, QColor(200, 100, 0, 128)).pixelColor(0, 0).rgba(),
                 qRgba(199, 100, 0, 128));
    }

    void thinLines()
    {
        PictureCanvas canvas({0, 0, 2, 2}, 2.0);
        canvas.drawThinLines({{0.25, 0.25}, {1.75, 0.25}, {1.75, 1.75}}, true);
        QCOMPARE(textOf(canvas.image()), u"####/...#/...#/...#"_s);
        PictureCanvas separate({0, 0, 3, 3}, 1.0);
        separate.drawThinLines({{0.5, 0.5}, {2.5, 0.5}, {0.5, 2.5}, {2.5, 2.5}}, false);
        QCOMPARE(textOf(separate.image()), u"###/.../###"_s);
    }

    void wholeDevicePixels_data()
    {
        const auto row = rowsOf([](const QRectF &asked, double ratio, const QRectF &area, const QSize &pixels) {
            PictureCanvas canvas(asked, ratio);
            canvas.drawThinLines({{0, 0}, {1, 1}}, true);
            QCOMPARE(canvas.area(), area);
            QCOMPARE(canvas.image().size(), pixels);
        });
        row("fractions", QRectF(-0.25, 1.0, 2.0, 1.6), 1.5, QRectF(-1.0 / 1.5, 1.0 / 1.5, 4.0 / 1.5, 2.0), QSize(4, 3));
        row("empty", {}, 2.0, {}, QSize(0, 0));
        row("endless", QRectF(0.0, 0.0, qInf(), 10.0), 1.0, {}, QSize(0, 0));
        constexpr double million = 1 << 20;
        row("far too wide", QRectF(0, 0, 32767 * million, 1000), 1.0, QRectF(0, 0, 32767 * million, million),
            QSize(32767, 1));
        row("too large to be sharp", QRectF(0, 0, 32768, 4096), 2.0, QRectF(0, 0, 32768, 4096), QSize(16384, 2048));
    }
    void wholeDevicePixels() { checkRow(); }
};

template struct TestClass<tst_PictureCanvas>;
#include "tst_PictureCanvas.moc"
