#include "style/values/ConvertException.h"
#include "style/values/FontValue.h"
#include "style/values/StrictNumber.h"
#include "style/values/ValueConversions.h"
#include "style/values/ValueFunctions.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <functional>
#include <locale>

using namespace tamble::client;

namespace {

/// "rgba(1, 2)" as a function call, anything else as text.
StyleValue valueOf(const QString &text)
{
    const qsizetype bracket = text.indexOf('(');
    if (bracket < 0)
        return text.toStdString();
    Expression call{text.left(bracket).toStdString(), {}};
    const QString inside = text.mid(bracket + 1).chopped(1);
    for (const QString &argument : inside.isEmpty() ? QStringList() : inside.split(QStringLiteral(", ")))
        call.arguments.push_back(argument.toStdString());
    return call;
}

QString faultOf(const std::function<void()> &conversion)
{
    try {
        conversion();
    } catch (const ConvertException &fault) {
        return QString::fromUtf8(fault.what());
    }
    return QStringLiteral("no fault");
}

struct CommaDecimals : std::numpunct<char>
{
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

class GlobalCommaLocale
{
public:
    GlobalCommaLocale()
        : m_previous(std::locale::global(std::locale(std::locale::classic(), new CommaDecimals)))
    {}
    ~GlobalCommaLocale() { std::locale::global(m_previous); }

private:
    std::locale m_previous;
};

} // namespace

/// Texts and function calls as colours, addresses, fonts, numbers and flags.
class tst_StyleValues : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void colors_data()
    {
        // expected: 0xAARRGGBB
        const auto row = rowsOf([](const QString &value, QRgb expected) {
            QCOMPARE(QString::number(colorFrom(valueOf(value)).rgba(), 16), QString::number(expected, 16));
        });
        row("rgb", "rgb(0, 86, 145)", 0xff005691u);
        row("rgb clamps and takes percentages", "rgb(300, -5, 50%)", 0xffff0080u);
        row("rgb percentages may have decimals and clamp", "rgb(0.4%, 250%, -1%)", 0xff01ff00u);
        row("rgba alpha 1", "rgba(255, 0, 0, 1)", 0xffff0000u);
        row("rgba alpha counts in 256ths", "rgba(255, 0, 0, 0.5)", 0x80ff0000u);
        row("rgba alpha below 0", "rgba(255, 0, 0, -1)", 0x00ff0000u);
        row("rgba alpha far above 1", "rgba(255, 0, 0, 1e30)", 0xffff0000u);
        row("hsl", "hsl(120, 100%, 50%)", 0xff00ff00u);
        row("hsl hue above 360 is 360", "hsl(400, 50%, 50%)", 0xffbf4040u);
        row("hsl hue below 0 is 0", "hsl(-120, 100%, 50%)", 0xffff0000u);
        row("hsl clamps percentages", "hsl(0, 100%, 300%)", 0xffffffffu);
        row("hsla", "hsla(240, 100%, 50%, 0.5)", 0x800000ffu);
        row("hsla clamps alpha", "hsla(240, 100%, 50%, 7)", 0xff0000ffu);
        row("hsb", "hsb(240, 100%, 50%)", 0xff000080u);
        row("hsba", "hsba(240, 100%, 100%, 0)", 0x000000ffu);
        row("six digits", "#008ccd", 0xff008ccdu);
        row("three digits", "#08C", 0xff0088ccu);
        row("eight digits begin with alpha", "#20000000", 0x20000000u);
        row("name", "white", 0xffffffffu);
    }
    void colors() { checkRow(); }

    void failures_data()
    {
        const auto wrong = rowsOf([](const QString &message) {
            QCOMPARE(faultOf([] { colorFrom(valueOf(QTest::currentDataTag())); }), message);
        });
        wrong("rgb(1, 2)", "rgb() expression expects 3 arguments");
        wrong("rgb()", "rgb() expression expects 3 arguments");
        wrong("rgba(1, 2, 3)", "rgba() expression expects 4 arguments");
        wrong("hsl(1, 2%, 3%, 1)", "hsl() expression expects 3 arguments");
        wrong("hsb(120, 50%)", "hsl() expression expects 3 arguments");
        wrong("hsba(120, 50%, 50%)", "hsla() expression expects 3 arguments");
        wrong("url(a, b)", "url() expression expects 1 argument");
        wrong("rgb(1, 2, 3.5)", "rgb() expression with bad value");
        wrong("rgb(1, 2, %)", "rgb() expression with bad value");
        wrong("rgb(1, 2, 99999999999)", "rgb() expression with bad value");
        wrong("rgba(1, 2, 3, nan)", "rgba() expression with bad value");
        wrong("rgba(1, 2, 3, 50%)", "rgba() expression with bad value");
        wrong("hsl(120, 50, 50%)", "hsl() expression with bad values");
        wrong("hsl(12.5, 50%, 50%)", "hsl() expression with bad values");
        wrong("hsba(120, 50%, 50%, inf)", "hsla() expression with bad values");
        wrong("lighter(white)", "Unsupported expression 'lighter'");
        wrong("url(a)", "Not a color expression 'url'");
        wrong("12", "Not a color expression '12'");
        wrong("#12", "Not a color expression '#12'");
    }
    void failures() { checkRow(); }

    void hueOfAFullCircle()
    {
        QCOMPARE(colorFrom(valueOf("hsl(400, 50%, 50%)")).hslHueF(), 1.0f);
        QCOMPARE(colorFrom(valueOf("hsl(180, 50%, 50%)")).hslHueF(), 0.5f);
    }

    void addresses_data()
    {
        const auto row =
            rowsOf([](const QString &value, const QUrl &expected) { QCOMPARE(urlFrom(valueOf(value)), expected); });
        row("resource", "url(qrc:/a/b.png)", QUrl("qrc:/a/b.png"));
        row("blanks are tolerated", "url(file:///x y.ttf)", QUrl::fromLocalFile("/x y.ttf"));
        row("text", "icons/open.svg", QUrl("icons/open.svg"));
        row("empty text", "", QUrl());
    }
    void addresses() { checkRow(); }

    void plainValues()
    {
        QCOMPARE(booleanFrom(std::string("true")), true);
        QCOMPARE(booleanFrom(std::string("false")), false);
        QCOMPARE(faultOf([] { booleanFrom(std::string("True")); }), "Not a boolean 'True'");
        QCOMPARE(stringFrom(std::string("gr\xc3\xbcn")), QString::fromUtf8("gr\xc3\xbcn"));
        QCOMPARE(fontFrom(std::string("bold")).weight(), QFont::Bold);

        const StyleValue call = Expression{"rgb", {"1", "2", "3"}};
        QCOMPARE(faultOf([&] { booleanFrom(call); }), "Not a boolean 'rgb()'");
        QCOMPARE(faultOf([&] { numberFrom(call); }), "Not a number 'rgb()'");
        QCOMPARE(faultOf([&] { stringFrom(call); }), "Not a string 'rgb()'");
        QCOMPARE(faultOf([&] { fontFrom(call); }), "Not a font 'rgb()'");
        QCOMPARE(faultOf([&] { urlFrom(call); }), "Not an url expression 'rgb'");
    }

    void numbers_data()
    {
        const auto number = rowsOf([](const std::optional<double> &expected) {
            const std::string text = QTest::currentDataTag();
            QCOMPARE(strictDouble(text), expected);
            QCOMPARE(strictFloat(text).has_value(), expected.has_value());
            if (expected)
                QCOMPARE(numberFrom(text), *expected);
            else
                QCOMPARE(faultOf([&] { numberFrom(text); }), QString::fromStdString("Not a number '" + text + "'"));
        });
        number("0", 0.0);
        number("-12.25", -12.25);
        number("+1", 1.0);
        number("1.000", 1.0);
        number(".5", 0.5);
        number("25e-1", 2.5);
        for (const char *text : {"", " 1", "1 ", "1,5", "1.000,5", "1'000", "50%", "12px", "0x10", "nan", "inf", "-inf",
                                 "+-1", "--1", "+", "-", "e5", "1e999", "one"})
            number(text, {});
    }
    void numbers() { checkRow(); }

    void numbersUnderACommaLocale()
    {
        const GlobalCommaLocale locale;
        QCOMPARE(numberFrom(std::string("0.5")), 0.5);
        QCOMPARE(numberFrom(std::string("1.000")), 1.0);
        QVERIFY(!strictDouble("0,5"));
        QVERIFY(!strictInteger("1.000"));
        QCOMPARE(colorFrom(valueOf("rgba(0, 50.5%, 0, 0.5)")).rgba(), 0x80008100u);
        QCOMPARE(colorFrom(valueOf("hsla(0, 100%, 50%, 0.5)")).rgba(), 0x80ff0000u);
        QCOMPARE(fontFromText("10.5pt").pointSizeF(), 10.5);
    }

    void fonts_data()
    {
        // pixelSize: -1 when the size is in points
        const auto row = rowsOf(
            [](const QString &text, const QString &family, int weight, const QFont::Style &style, int pixelSize) {
                const QFont font = fontFromText(text.toStdString());
                QCOMPARE(font.family(), family);
                QCOMPARE(int(font.weight()), weight);
                QCOMPARE(font.style(), style);
                QCOMPARE(font.pixelSize(), pixelSize);
            });
        row("family, weight and size", "Brack Office Sans bold 14px", "Brack Office Sans", 700, QFont::StyleNormal, 14);
        row("any order", "14px italic Brack black Sans", "Brack Sans", 900, QFont::StyleItalic, 14);
        row("first word of a group counts", "demibold Brack bold", "Brack bold", 600, QFont::StyleNormal, -1);
        row("first in the text, not in the table", "oblique italic", "italic", 400, QFont::StyleOblique, -1);
        row("case matters", "Bold ITALIC", "Bold ITALIC", 400, QFont::StyleNormal, -1);
        row("only keywords", "regular upright 9px", "", 400, QFont::StyleNormal, 9);
        row("pixels before points", "8px Brack 10.5pt", "Brack", 400, QFont::StyleNormal, 8);
        row("no decimals in pixels", "Brack 8.5px", "Brack 8.5px", 400, QFont::StyleNormal, -1);
        row("no size at all", "Brack 0px", "Brack", 400, QFont::StyleNormal, -1);
        row("size beyond an integer", "Brack 99999999999px", "Brack", 400, QFont::StyleNormal, -1);
        row("runs of blanks", "  Brack \t  Sans  bold ", "Brack Sans", 700, QFont::StyleNormal, -1);
        row("a tab alone does not separate", "Brack\tbold", "Brack\tbold", 400, QFont::StyleNormal, -1);
    }
    void fonts() { checkRow(); }

    void fontDefaults()
    {
        const QFont plain = fontFromText("Brack");
        QCOMPARE(plain.pointSizeF(), QFont(QStringLiteral("Brack"), 0).pointSizeF());
        QCOMPARE(plain.capitalization(), QFont::MixedCase);
        QCOMPARE(plain.hintingPreference(), QFont::PreferDefaultHinting);

        const QFont font = fontFromText("Brack smallcaps nohinting 10.5pt");
        QCOMPARE(font.pointSizeF(), 10.5);
        QCOMPARE(font.capitalization(), QFont::SmallCaps);
        QCOMPARE(font.hintingPreference(), QFont::PreferNoHinting);
        QCOMPARE(font.family(), "Brack");
    }
};

template struct TestClass<tst_StyleValues>;
#include "tst_StyleValues.moc"
