#include "random/Random.h"
#include "support/Numbers.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <tambleclient-common/DoubleValueConverter.h>
#include <tambleclient-common/RValueConverter.h>

#include <QLocale>
#include <QUrl>

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;
using namespace tamble::client;

namespace {

using Properties = QVariantMap;

void apply(QObject &object, const Properties &properties)
{
    for (auto property = properties.begin(); property != properties.end(); ++property)
        QVERIFY2(object.setProperty(qPrintable(property.key()), property.value()), qPrintable(property.key()));
}

/// Of rows of properties, a value and its text.
template <typename Converter>
void compareText()
{
    const auto &[properties, value, expected] = Rows<Properties, QVariant, QString>::current();
    Converter converter;
    apply(converter, properties);
    converter.setValue(value);
    QCOMPARE(converter.displayText(), expected);
}

/// Of rows of properties, a text and its value.
template <typename Converter>
void compareReading()
{
    const auto &[properties, text, expected] = Rows<Properties, QString, QVariant>::current();
    Converter converter;
    apply(converter, properties);
    const QVariant value = converter.fromText(text);
    QCOMPARE(value.metaType(), expected.metaType());
    QCOMPARE(value, expected);
    // Exactly: a device value must not creep with each edit.
    QVERIFY2(value.toDouble() == expected.toDouble(), qPrintable(QString::number(value.toDouble(), 'g', 17)));
    QCOMPARE(converter.accepts(text), expected.isValid());
}

/// Uniform in 0…1, all bits of the mantissa being random.
double fraction(Random &random)
{
    const double low = double(random.below(1U << 26)) * 0x1p-26;
    return (double(random.below(1U << 27)) + low) * 0x1p-27;
}

/// Of either sign and any usual magnitude; half of the numbers have few digits.
double anyNumber(Random &random)
{
    const double digits = random.oneIn(2) ? double(random.below(2000)) / 16 : 10 * fraction(random);
    const double number = digits * std::pow(10, double(random.below(40)) - 18);
    return random.oneIn(2) ? -number : number;
}

/// A converter with some scale and some way of writing, and a value for it.
double anyConversion(Random &random, DoubleValueConverter &converter)
{
    static const std::array factors{1.0, 1.0, -1.0, 0.1, 1.8, 3.0, 100.0, 1000.0, 0.001, -0.7, 1.0 / 3.0, 8.6858896};
    static const std::array<const char *, 5> units{"", "dB", "Hz", "k", "\u00B0F"};
    const double value = anyNumber(random);
    const double factor = random.oneIn(3) ? anyNumber(random) : random.oneOf(factors);
    // Offsets close to what they are added to leave hardly anything.
    const std::array offsets{0.0, 32.0, -273.15, anyNumber(random), -value * factor * (1 + 1e-9 * fraction(random))};

    converter.setDecimals(int(random.below(16)));
    converter.setFactor(factor);
    converter.setOffset(random.oneOf(offsets));
    converter.setKilo(random.oneIn(3));
    converter.setPlusSign(random.oneIn(3));
    converter.setDecimalPoint(random.oneIn(2) ? u","_s : u"."_s);
    converter.setUnit(QString::fromUtf8(random.oneOf(units)));
    converter.setPrefix(random.oneIn(4) ? u"~"_s : QString());
    return value;
}

/// A client's own converter: names channels.
class ChannelConverter : public RValueConverter
{
public:
    QString toText(const QVariant &value) const override { return u"Channel "_s + value.toString(); }
    QVariant fromText(const QString &text) const override { return text.mid(8).toInt(); }
};

} // namespace

class tst_ValueConverters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // Comma as the point: none of the texts below may follow it.
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    }

    void baseText_data()
    {
        const Rows<Properties, QVariant, QString> add;
        const Properties unit{{u"unit"_s, u"ms"_s}, {u"prefix"_s, u"~"_s}};
        const Properties texts{{u"unit"_s, u"ms"_s},
                               {u"texts"_s, QVariantMap{{u"0"_s, u"Off"_s},
                                                        {u"-3.5"_s, u"Low"_s},
                                                        {u"1000000"_s, u"Max"_s},
                                                        {u"true"_s, u"Yes"_s},
                                                        {u""_s, u"unnamed"_s},
                                                        {u"7"_s, u""_s}}}};

        add("undefined", {}, {}, u"\u2013"_s);
        add("null", unit, QVariant::fromValue(nullptr), u"\u2013"_s);
        add("NaN", unit, notANumber, u"\u2013"_s);
        add("bool has no unit", unit, true, u"On"_s);
        add("six digits", {}, 3.14159265, u"3.14159"_s);
        add("large number", {}, 1234567, u"1.23457e+06"_s);
        add("negative zero", {}, -0.0, u"0"_s);
        add("float reads as its decimal", {}, 0.1f, u"0.1"_s);
        add("unit and prefix", unit, 2.5, u"~2.5\u00A0ms"_s);
        add("infinity", unit, -infinity, u"\u2212\u221E"_s);
        add("text has no unit", unit, u"auto"_s, u"auto"_s);
        add("list", {}, QVariantList{1, true, u"x"_s, QVariant()}, u"1, On, x, \u2013"_s);
        add("empty list", {}, QVariantList(), u"\u2013"_s);
        const QString longText(60'000, u'x');
        add("list of long texts", {}, QStringList{longText, longText, u"a"_s}, u"%1, %1, \u2026"_s.arg(longText));
        add("type with a text", {}, QUrl(u"http://amp/"_s), u"http://amp/"_s);
        add("type without a text", {}, QVariant::fromValue<QObject *>(this), u"\u2013"_s);
        add("entry for an int", texts, 0, u"Off"_s);
        add("entry for negative zero", texts, -0.0, u"Off"_s);
        add("entry for a fraction", texts, -3.5, u"Low"_s);
        add("entry for a large number", texts, 1e6, u"Max"_s);
        add("entry for a bool", texts, true, u"Yes"_s);
        add("entry for the empty text", texts, u""_s, u"unnamed"_s);
        add("entry that blanks out", texts, 7, u""_s);
        add("number near an entry", texts, 1e-9, u"1e-09\u00A0ms"_s);
    }

    void baseText() { compareText<RValueConverter>(); }

    void baseReading_data()
    {
        const Rows<Properties, QString, QVariant> row;
        const Properties unit{{u"unit"_s, u"ms"_s}};
        const Properties texts{{u"texts"_s, QVariantMap{{u"0"_s, u"Off"_s}, {u"auto"_s, u"Automatic"_s}}}};

        row("own large form", {}, u"1.5e+06"_s, QVariant(1.5e6));
        row("comma and unit", unit, u"2,5 MS"_s, QVariant(2.5));
        row("bool", {}, u"on"_s, QVariant(true));
        row("entry before bool", texts, u"OFF"_s, QVariant(0.0));
        row("entry for a text", texts, u"automatic"_s, QVariant(u"auto"_s));
        row("text as it is", {}, u"Stage left"_s, QVariant(u"Stage left"_s));
        row("a unit means numbers", unit, u"Stage left"_s, QVariant());
        row("empty", {}, u"  "_s, QVariant());
        row("null text", {}, u"\u2013"_s, QVariant());
    }

    void baseReading() { compareReading<RValueConverter>(); }

    void doubleText_data()
    {
        const Rows<Properties, QVariant, QString> add;
        const Properties whole{{u"decimals"_s, 0}};
        const Properties kilo{{u"kilo"_s, true}, {u"unit"_s, u"Hz"_s}};
        const Properties plus{{u"plusSign"_s, true}, {u"unit"_s, u"dB"_s}};
        const Properties bounds{{u"minimum"_s, -100},
                                {u"maximum"_s, 12},
                                {u"minimumText"_s, u"\u2212\u221E"_s},
                                {u"maximumText"_s, u"max"_s},
                                {u"unit"_s, u"dB"_s}};

        add("half up", whole, 2.5, u"3"_s);
        add("half down below zero", whole, -2.5, u"-3"_s);
        add("half read as a decimal", {}, 0.05, u"0.1"_s);
        add("far below the last digit", whole, 1e-30, u"0"_s);
        add("carry", {}, 9.96, u"10.0"_s);
        add("negative zero", {}, -0.0, u"0.0"_s);
        add("rounded to zero", {}, -0.04, u"0.0"_s);
        add("no noise in long decimals", {{u"decimals"_s, 15}}, 0.1, u"0.100000000000000"_s);
        add("decimals above range", {{u"decimals"_s, 99}}, 0.5, u"0.500000000000000"_s);
        add("decimals below range", {{u"decimals"_s, -2}}, 12.5, u"13"_s);
        add("no exponent", whole, 1e20, u"100000000000000000000"_s);
        add("NaN", {}, notANumber, u"\u2013"_s);
        add("infinity", {{u"unit"_s, u"dB"_s}}, infinity, u"\u221E"_s);
        add("negative infinity", {}, -infinity, u"\u2212\u221E"_s);

        add("scale", {{u"factor"_s, 1.8}, {u"offset"_s, 32}, {u"unit"_s, u"\u00B0F"_s}}, 37, u"98.6\u00A0\u00B0F"_s);
        add("scale leaves a half", {{u"factor"_s, 100}, {u"decimals"_s, 0}}, 0.145, u"15"_s);
        add("factor 0", {{u"factor"_s, 0}}, 3, u"\u2013"_s);
        add("factor NaN", {{u"factor"_s, notANumber}}, 3, u"\u2013"_s);
        add("offset infinite", {{u"offset"_s, infinity}}, 3, u"\u2013"_s);

        add("plus", plus, 3, u"+3.0\u00A0dB"_s);
        add("no plus at zero", plus, 0.04, u"0.0\u00A0dB"_s);
        add("own point", {{u"decimalPoint"_s, u","_s}}, 1.5, u"1,5"_s);
        add("unusable point", {{u"decimalPoint"_s, u"-"_s}}, 1.5, u"1.5"_s);

        add("kilo", kilo, 1250, u"1.25\u00A0kHz"_s);
        add("kilo rounds to three digits", kilo, -12345, u"-12.3\u00A0kHz"_s);
        add("kilo half away from zero", kilo, 1005000, u"1010\u00A0kHz"_s);
        add("kilo carry", kilo, 9995, u"10\u00A0kHz"_s);
        add("below kilo", kilo, 999.9, u"999.9\u00A0Hz"_s);
        add("rounded up into kilo", kilo, 999.96, u"1\u00A0kHz"_s);
        add("kilo without unit", {{u"kilo"_s, true}}, 1250, u"1.25\u00A0k"_s);

        add("at the minimum", bounds, -100, u"\u2212\u221E"_s);
        add("below the minimum", bounds, -infinity, u"\u2212\u221E"_s);
        add("just above the minimum", bounds, -99.9, u"-99.9\u00A0dB"_s);
        add("beyond the maximum", bounds, 13, u"max"_s);
        add("minimum is a value, not what is shown",
            {{u"minimum"_s, 0}, {u"minimumText"_s, u"Off"_s}, {u"offset"_s, 5}}, 0, u"Off"_s);
        add("bounds without texts", {{u"minimum"_s, 0}, {u"maximum"_s, 1}}, 2, u"2.0"_s);
        add("entry before the bound",
            {{u"minimum"_s, 0}, {u"minimumText"_s, u"min"_s}, {u"texts"_s, QVariantMap{{u"0"_s, u"Off"_s}}}}, 0,
            u"Off"_s);

        add("list", plus, QVariantList{1, -2.25}, u"+1.0\u00A0dB, -2.3\u00A0dB"_s);
    }

    void doubleText() { compareText<DoubleValueConverter>(); }

    void doubleReading_data()
    {
        const Rows<Properties, QString, QVariant> add;
        const Properties decibel{{u"unit"_s, u"dB"_s},
                                 {u"minimum"_s, -100},
                                 {u"maximum"_s, 12},
                                 {u"minimumText"_s, u"Off"_s},
                                 {u"maximumText"_s, u"Full"_s}};
        const Properties hertz{{u"unit"_s, u"Hz"_s}, {u"prefix"_s, u"f ="_s}};

        add("outer blanks", {}, u" \t1.5\u00A0"_s, 1.5);
        add("own point", {{u"decimalPoint"_s, u"\u066B"_s}}, u"1\u066B5"_s, 1.5);
        add("typographic minus", {}, u"\u22121.5"_s, -1.5);
        add("plus", {}, u"+.5"_s, 0.5);
        add("trailing point", {}, u"5."_s, 5.0);
        add("two points", {}, u"1,234.5"_s, {});
        add("sign alone", {}, u"-"_s, {});
        add("point alone", {}, u"."_s, {});
        add("empty", {}, u""_s, {});
        add("blank after the sign", {}, u"- 5"_s, {});
        add("exponent", {}, u"1e3"_s, {});
        add("foreign digits", {}, u"\u0663"_s, {});
        add("beyond double", {}, QString(400, u'9'), {});

        add("unit in any case, no blank", decibel, u"-6DB"_s, -6.0);
        add("half a unit", decibel, u"-6 d"_s, {});
        add("unit alone", decibel, u"dB"_s, {});
        add("not clamped", decibel, u"600"_s, 600.0);
        add("minimum text", decibel, u" off"_s, -100.0);
        add("maximum text", decibel, u"FULL"_s, 12.0);
        add("minus infinity in letters", decibel, u"-Inf dB"_s, -100.0);
        add("minus infinity as signs", decibel, u"\u2212\u221E"_s, -100.0);
        add("infinity", decibel, u"inf"_s, 12.0);
        add("infinity without bounds", {}, u"-inf"_s, -infinity);
        add("infinity before a unit of its last letter", {{u"unit"_s, u"F"_s}}, u"-inf"_s, -infinity);
        add("infinity with a negative factor", {{u"factor"_s, -1}, {u"minimum"_s, 0}}, u"inf"_s, 0.0);
        add("null text", decibel, u"\u2013"_s, {});

        add("kilo with unit", hertz, u"1.25 kHz"_s, 1250.0);
        add("kilo with blanks", hertz, u"f =  1,25 K hz"_s, 1250.0);
        add("kilo alone", hertz, u"k"_s, {});
        add("kilo exact", hertz, u"1.001k"_s, 1001.0);
        add("unit that contains k", {{u"unit"_s, u"kHz"_s}}, u"1.25 kHz"_s, 1.25);

        add("scale", {{u"factor"_s, 1.8}, {u"offset"_s, 32}}, u"98.6"_s, 37.0);
        add("scale leaves no noise", {{u"factor"_s, 0.1}}, u"0.3"_s, 3.0);
        add("kilo before scale", {{u"factor"_s, 1000}}, u"2k"_s, 2.0);
        add("factor 0", {{u"factor"_s, 0}}, u"1"_s, {});
        add("factor NaN", {{u"factor"_s, notANumber}}, u"1"_s, {});
        add("tiny factor overflows", {{u"factor"_s, 1e-300}}, u"1e300"_s, {});
        add("entry", {{u"texts"_s, QVariantMap{{u"0"_s, u"Off"_s}}}}, u"off"_s, 0.0);
    }

    void doubleReading() { compareReading<DoubleValueConverter>(); }

    void textSurvivesReading_data()
    {
        const auto row = rowsOf([](const Properties &properties) {
            DoubleValueConverter converter;
            apply(converter, properties);

            for (const double value : {0.0, 0.05, 0.95, 1.005, 2.5, 99.95, 999.5, 999.96, 1234.5, 99950.0, 123456.75,
                                       1e15, 1e21, infinity}) {
                for (const double signedValue : {value, -value}) {
                    const QString text = converter.toText(signedValue);
                    QCOMPARE(converter.toText(converter.fromText(text)), text);
                }
            }
        });
        row("plain", {});
        row("frequency", {{u"unit"_s, u"Hz"_s}, {u"kilo"_s, true}, {u"decimals"_s, 0}});
        row("reversed", {{u"factor"_s, -0.7}, {u"decimals"_s, 2}, {u"decimalPoint"_s, u","_s}});
    }
    void textSurvivesReading() { checkRow(); }

    void anyTextSurvivesReading()
    {
        Random random(1);
        int failures = 0;
        for (int i = 0; i < 60'000; ++i) {
            DoubleValueConverter converter;
            const double value = anyConversion(random, converter);
            const QString text = converter.toText(value);
            const QString again = converter.toText(converter.fromText(text));
            if (text == again || ++failures > 10)
                continue;
            qWarning().noquote() << QString::number(value, 'g', 17) << '*'
                                 << QString::number(converter.factor(), 'g', 17) << '+'
                                 << QString::number(converter.offset(), 'g', 17) << "with" << converter.decimals()
                                 << "decimals:" << text << "then" << again;
        }
        QCOMPARE(failures, 0);
    }

    void displayTextFollowsEachProperty_data()
    {
        const auto add = rowsOf([](const QVariant &value, const QString &expected, const Properties &before) {
            const QByteArray property = QTest::currentDataTag();
            DoubleValueConverter converter;
            apply(converter, before);
            QSignalSpy textSpy(&converter, &RValueConverter::displayTextChanged);
            QSignalSpy propertySpy(&converter, ("2" + property + "Changed()").constData());

            for (int i = 0; i < 2; ++i) {
                QVERIFY(converter.setProperty(property.constData(), value));
                QCOMPARE(converter.displayText(), expected);
                QCOMPARE(textSpy.size(), 1);
                QCOMPARE(propertySpy.size(), 1);
            }
        });
        const Properties given{{u"value"_s, 1500}};

        add("value", 2, u"2.0"_s, given);
        add("unit", u"Hz"_s, u"1500.0\u00A0Hz"_s, given);
        add("prefix", u"~"_s, u"~1500.0"_s, given);
        add("nullText", u"none"_s, u"none"_s, {});
        add("texts", QVariantMap{{u"1500"_s, u"Mid"_s}}, u"Mid"_s, given);
        add("decimals", 0, u"1500"_s, given);
        add("factor", 2, u"3000.0"_s, given);
        add("offset", 1, u"1501.0"_s, given);
        add("minimum", 1500, u"low"_s, {{u"value"_s, 1500}, {u"minimumText"_s, u"low"_s}});
        add("maximum", 1500, u"high"_s, {{u"value"_s, 1500}, {u"maximumText"_s, u"high"_s}});
        add("minimumText", u"low"_s, u"low"_s, {{u"value"_s, -5}, {u"minimum"_s, -1}});
        add("maximumText", u"high"_s, u"high"_s, {{u"value"_s, 5}, {u"maximum"_s, 1}});
        add("plusSign", true, u"+1500.0"_s, given);
        add("kilo", true, u"1.5\u00A0k"_s, given);
        add("decimalPoint", u","_s, u"1500,0"_s, given);
    }
    void displayTextFollowsEachProperty() { checkRow(); }

    void signalsCarryTheNewState()
    {
        DoubleValueConverter converter;
        QStringList seen;
        const auto note = [&](const QString &name) {
            return [&seen, &converter, name] {
                seen += name + converter.value().toString() + u'/' + converter.displayText();
            };
        };
        connect(&converter, &RValueConverter::displayTextChanged, this, note(u"text "_s));
        connect(&converter, &RValueConverter::valueChanged, this, note(u"value "_s));

        converter.setValue(1.01);
        converter.setValue(1.02);
        QCOMPARE(seen, QStringList({u"text 1.01/1.0"_s, u"value 1.01/1.0"_s, u"value 1.02/1.0"_s}));
    }

    void equalValuesAreSilent()
    {
        RValueConverter converter;
        QSignalSpy spy(&converter, &RValueConverter::valueChanged);
        converter.setValue(QVariant());
        QCOMPARE(spy.size(), 0);

        converter.setValue(notANumber);
        converter.setValue(notANumber);
        QCOMPARE(spy.size(), 1);

        converter.setValue(true);
        QCOMPARE(converter.displayText(), u"On"_s);
        converter.setValue(1);
        QCOMPARE(converter.displayText(), u"1"_s);
        QCOMPARE(spy.size(), 3);
    }

    void derivedConverterIsUsed()
    {
        ChannelConverter converter;
        converter.setValue(4);
        QCOMPARE(converter.displayText(), u"Channel 4"_s);

        QVariant value;
        QVERIFY(QMetaObject::invokeMethod(&converter, "fromText", Q_RETURN_ARG(QVariant, value),
                                          Q_ARG(QString, u"Channel 12"_s)));
        QCOMPARE(value, QVariant(12));
    }
};

template struct TestClass<tst_ValueConverters>;
#include "tst_ValueConverters.moc"
