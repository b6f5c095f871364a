#include "support/TestProgram.h"

#include <QtCore/QFile>
#include <QtGui/QPainterPath>
#include <QtGui/QRawFont>

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// The interface font looks as the font that it is made of: below and above the size at which hinting ends.
class tst_InterfaceFont : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void looksAsItsOrigin_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<int>("pixelSize");
        for (const char *style : {"Regular", "Bold"}) {
            for (const int pixelSize : {9, 14, 48, 200, 201, 300})
                QTest::addRow("%s %d", style, pixelSize) << style << pixelSize;
        }
    }

    void looksAsItsOrigin()
    {
        QFETCH(QString, style);
        QFETCH(int, pixelSize);
        const QByteArray file = contentOf(QStringLiteral(TAMBLE_FONTS "/Lato-%1.ttf").arg(style));
        const QByteArray derivedFile = contentOf(QStringLiteral(":/asset/fonts/TambleSans-%1.ttf").arg(style));
        const QRawFont origin(file, pixelSize, QFont::PreferFullHinting);
        const QRawFont derived(derivedFile, pixelSize, QFont::PreferFullHinting);
        QVERIFY(origin.isValid() && derived.isValid());
        QCOMPARE(derived.familyName(), QStringLiteral("Tamble Sans"));
        QCOMPARE(derived.styleName(), origin.styleName());

        const QString text = QStringLiteral("ABCGQRSWXYZabcefghkmqsxyz0123456789-+.,%/&@\u2212\u221e\u00e4\u00e9");
        const QList<quint32> glyphs = origin.glyphIndexesForString(text);
        QCOMPARE(derived.glyphIndexesForString(text), glyphs);
        QCOMPARE(derived.advancesForGlyphIndexes(glyphs), origin.advancesForGlyphIndexes(glyphs));
        for (const quint32 glyph : glyphs) {
            QCOMPARE(derived.alphaMapForGlyph(glyph, QRawFont::PixelAntialiasing),
                     origin.alphaMapForGlyph(glyph, QRawFont::PixelAntialiasing));
            QCOMPARE(derived.pathForGlyph(glyph), origin.pathForGlyph(glyph));
        }
    }
};

template struct TestClass<tst_InterfaceFont>;
#include "tst_InterfaceFont.moc"
