#include "fields/RStringRuleValidator.h"
#include "fields/RTextFieldDoubleValidator.h"
#include "fields/RTextFieldIntValidator.h"
#include "fields/RTextFieldIpAddressValidator.h"
#include "fields/RTextFieldPinValidator.h"
#include "support/Numbers.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <memory>

using namespace Qt::StringLiterals;
using namespace tamble::client;

namespace {

QValidator::State stateOf(const QValidator &validator, QString text)
{
    int cursor = 0;
    return validator.validate(text, cursor);
}

using Properties = QVariantMap;

template <typename Validator>
std::unique_ptr<QValidator> made(const Properties &properties)
{
    auto validator = std::make_unique<Validator>();
    for (auto property = properties.begin(); property != properties.end(); ++property)
        validator->setProperty(qPrintable(property.key()), property.value());
    return validator;
}

using Rule = RStringRuleValidatorRule;

Properties stringRule(Rule::Type rule, Properties others = {})
{
    others.insert(u"rule"_s, int(rule));
    return others;
}

} // namespace

class tst_FieldValidators : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void decimals_data()
    {
        const auto row =
            rowsOf([](const QString &text, double bottom, double top, int decimals, const QValidator::State &state) {
                RTextFieldDoubleValidator validator;
                validator.setRange(bottom, top, decimals);
                QCOMPARE(stateOf(validator, text), state);
            });
        row("in range", "3.5", -10.0, 10.0, 1, QValidator::Acceptable);
        row("comma separates", "3,5", -10.0, 10.0, 1, QValidator::Acceptable);
        row("no digit before the separator", ".5", -10.0, 10.0, 1, QValidator::Acceptable);
        row("on the bound", "-10", -10.0, 10.0, 1, QValidator::Acceptable);
        row("true minus", "\u22123,5", -10.0, 10.0, 1, QValidator::Acceptable);
        row("empty", "", -10.0, 10.0, 1, QValidator::Intermediate);
        row("sign alone", "-", -10.0, 10.0, 1, QValidator::Intermediate);
        row("separator alone", ",", -10.0, 10.0, 1, QValidator::Intermediate);
        row("fraction to come", "5.", -10.0, 10.0, 1, QValidator::Intermediate);
        row("above the range", "11", -10.0, 10.0, 1, QValidator::Intermediate);
        row("below the range", "2", 20.0, 20000.0, 1, QValidator::Intermediate);
        row("blank behind", "5 ", -10.0, 10.0, 1, QValidator::Intermediate);
        row("blank inside", "5 0", -10.0, 100.0, 1, QValidator::Invalid);
        row("second separator", "1.2,", -10.0, 10.0, 2, QValidator::Invalid);
        row("sign in the middle", "1-", -10.0, 10.0, 2, QValidator::Invalid);
        row("exponent", "1e3", 0.0, 1e4, 2, QValidator::Invalid);
        row("minus without negative numbers", "-", 0.0, 10.0, 1, QValidator::Invalid);
        row("separator without decimals", "5.", 0.0, 10.0, 0, QValidator::Invalid);
        row("too many decimals", "0.12", 0.0, 10.0, 1, QValidator::Invalid);
        row("any number of decimals", "0.123456", 0.0, 10.0, -1, QValidator::Acceptable);
        row("15 digits", "1234567890.12345", 0.0, infinity, 5, QValidator::Acceptable);
        row("16 digits", "12345678901.12345", 0.0, infinity, 5, QValidator::Invalid);
        row("other digits", "\u0663", 0.0, 10.0, 0, QValidator::Invalid);
        row("open bounds", "-12", notANumber, notANumber, 0, QValidator::Acceptable);
        row("reversed bounds", "5", 10.0, 0.0, 0, QValidator::Intermediate);
    }
    void decimals() { checkRow(); }

    void integers_data()
    {
        const auto row = rowsOf([](const QString &text, int bottom, const QValidator::State &state) {
            RTextFieldIntValidator validator;
            validator.setRange(bottom, 96);
            QCOMPARE(stateOf(validator, text), state);
        });
        row("in range", "48", 1, QValidator::Acceptable);
        row("plus", "+48", 1, QValidator::Acceptable);
        row("outside", "97", 1, QValidator::Intermediate);
        row("larger than an int, 10 digits", "9999999999", 1, QValidator::Intermediate);
        row("11 digits", "99999999999", 1, QValidator::Invalid);
        row("minus, negative too", "-", -1, QValidator::Intermediate);
        row("true minus", "\u22123", -5, QValidator::Acceptable);
        row("separator", "4.0", 1, QValidator::Invalid);
        row("blank in front", " 4", 1, QValidator::Intermediate);
        row("hexadecimal", "0x1", 1, QValidator::Invalid);
    }
    void integers() { checkRow(); }

    void addresses_data()
    {
        const auto row = rowsOf([](const QString &text, const QValidator::State &state) {
            QCOMPARE(stateOf(RTextFieldIpAddressValidator(), text), state);
        });
        for (const char *address : {"192.168.1.10", "0.0.0.0", "255.255.255.255"})
            row(address, QString::fromLatin1(address), QValidator::Acceptable);
        for (const char *beginning : {"", "1", "192.", "192.168.1", "192.168.1.", " 1.2.3.4", "1.2.3.4 "})
            row(qPrintable(QString::asprintf("beginning \"%s\"", beginning)), QString::fromLatin1(beginning),
                QValidator::Intermediate);
        for (const char *wrong :
             {".", "1..", "256", "1.2.3.2550", "01", "00", "1.2.3.4.", "1.2.3.4.5", "a", "1,2", "1 .2", "-1"})
            row(wrong, QString::fromLatin1(wrong), QValidator::Invalid);
    }
    void addresses() { checkRow(); }

    void pins_data()
    {
        const auto row = rowsOf([](const QString &text, bool trivialAllowed, const QValidator::State &state) {
            RTextFieldPinValidator validator;
            validator.setProperty("trivialAllowed", trivialAllowed);
            QCOMPARE(stateOf(validator, text), state);
        });
        row("shortest", "1470", false, QValidator::Acceptable);
        row("too short", "147", false, QValidator::Intermediate);
        row("longest", "14701470", false, QValidator::Acceptable);
        row("too long", "147014701", false, QValidator::Invalid);
        row("letter", "14a", false, QValidator::Invalid);
        row("repeated digit", "7777", false, QValidator::Intermediate);
        row("run up", "23456", false, QValidator::Intermediate);
        row("run down", "9876", false, QValidator::Intermediate);
        row("broken run", "12346", false, QValidator::Acceptable);
        row("run where allowed", "1234", true, QValidator::Acceptable);
    }
    void pins() { checkRow(); }

    void strings_data()
    {
        const auto row = rowsOf([](const Properties &properties, const QString &text, const QValidator::State &state) {
            QCOMPARE(stateOf(*made<RStringRuleValidator>(properties), text), state);
        });
        row("any by default", {}, u" \u00FC "_s, QValidator::Acceptable);
        row("forbidden character", stringRule(Rule::RULE_ASCII), u"\u00FC"_s, QValidator::Invalid);
        row("wrong as a whole", stringRule(Rule::RULE_FILE_NAME), u"nul"_s, QValidator::Intermediate);
        const Properties pattern = stringRule(Rule::RULE_PATTERN, {{u"pattern"_s, u"[A-D][0-9]+"_s}});
        row("part of a pattern", pattern, u"B"_s, QValidator::Intermediate);
        row("another rule has no pattern", {{u"pattern"_s, u"[A-D]"_s}}, u"x"_s, QValidator::Acceptable);
    }
    void strings() { checkRow(); }

    void illFormedPatternIsToldOnce()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"ill-formed pattern \"a\\(\" accepts"_s));
        const auto validator = made<RStringRuleValidator>(stringRule(Rule::RULE_PATTERN, {{u"pattern"_s, u"a("_s}}));
        validator->setProperty("pattern", u"a("_s);
        QCOMPARE(stateOf(*validator, u"anything"_s), QValidator::Acceptable);
    }

    void messages_data()
    {
        using Make = std::unique_ptr<QValidator> (*)(const Properties &);
        const auto row =
            rowsOf([](const Make &make, const Properties &properties, const QString &text, const QString &message) {
                const auto validator = make(properties);
                QCOMPARE(FieldReason::of(validator.get(), text), message);
                QCOMPARE(message.isEmpty(), stateOf(*validator, text) == QValidator::Acceptable);
            });
        const Make decimal = made<RTextFieldDoubleValidator>;
        const double greatest = std::numeric_limits<double>::max();
        row("number", decimal, {{u"bottom"_s, -0.5}, {u"top"_s, 2e6}}, u"x"_s,
            u"Enter a number from -0.5 to 2000000"_s);
        row("no top", decimal, {{u"bottom"_s, 5}}, u"1"_s, u"Enter a number of at least 5"_s);
        row("no bottom", decimal, {{u"top"_s, 5}, {u"bottom"_s, notANumber}}, u"9"_s, u"Enter a number of at most 5"_s);
        row("no bounds", decimal, {{u"top"_s, greatest}}, u"-"_s, u"Enter a number"_s);
        row("right number", decimal, {{u"bottom"_s, 5}}, u"5,5"_s, u""_s);
        row("whole number", made<RTextFieldIntValidator>, {{u"bottom"_s, 1}, {u"top"_s, 96}}, u"97"_s,
            u"Enter a whole number from 1 to 96"_s);
        row("address", made<RTextFieldIpAddressValidator>, {}, u"10.0"_s, u"Enter an address such as 192.168.1.10"_s);
        const Properties strict{{u"trivialAllowed"_s, false}};
        row("PIN", made<RTextFieldPinValidator>, strict, u"12"_s, u"Enter 4 to 8 digits"_s);
        row("trivial PIN", made<RTextFieldPinValidator>, strict, u"1111"_s, u"This PIN is too easy to guess"_s);
        row("right PIN", made<RTextFieldPinValidator>, strict, u"1470"_s, u""_s);
        row("a validator of other kind", made<QIntValidator>, {}, u"1"_s, u""_s);
    }
    void messages() { checkRow(); }

    void stringMessages_data()
    {
        const auto row = rowsOf([](const Properties &properties, const QString &text, const QString &message) {
            QCOMPARE(FieldReason::of(made<RStringRuleValidator>(properties).get(), text), message);
        });
        const Properties file = stringRule(Rule::RULE_FILE_NAME);
        const Properties host = stringRule(Rule::RULE_DNS_NAME);
        const Properties pattern = stringRule(Rule::RULE_PATTERN, {{u"pattern"_s, u"ab"_s}});
        row("right file name", file, u"Hall 1"_s, u""_s);
        row("pair", stringRule(Rule::RULE_ASCII), u"\U0001F3A7"_s, u"\"\U0001F3A7\" is not allowed here"_s);
        row("inner blank", stringRule(Rule::RULE_HEX), u"a b"_s, u"A blank is not allowed here"_s);
        row("half a pair", {}, QString(QChar(0xD83C)), u"A character that cannot be seen is not allowed here"_s);
        row("too long", {{u"maximumLength"_s, 3}}, u"abcd"_s, u"At most 3 characters"_s);
        row("too short", stringRule(Rule::RULE_PASSWORD), u"abcd"_s, u"At least 8 characters"_s);
        row("empty", file, u""_s, u"At least one character"_s);
        row("bytes", {{u"maximumBytes"_s, 3}}, u"\u00FC\u00FC"_s,
            u"At most 3 bytes, and most special characters take two or more"_s);
        row("outer blank", file, u"a "_s, u"No blank at the beginning or the end"_s);
        row("last dot", file, u"a."_s, u"No dot at the end"_s);
        row("device", file, u"nul"_s, u"Computers keep this name for a device"_s);
        row("two dots", host, u"a..b"_s, u"A dot needs a letter or digit on both sides"_s);
        row("long label", host, QString(64, u'a'), u"At most 63 characters without a dot"_s);
        row("hyphen", host, u"a-.b"_s, u"No hyphen at the end or next to a dot"_s);
        row("half a byte", stringRule(Rule::RULE_HEX), u"abc"_s, u"One more digit is needed, they come in pairs"_s);
        row("part of a pattern", pattern, u"a"_s, u"This text is not complete yet"_s);
        row("no part of it", pattern, u"b"_s, u"This text does not have the form that is needed here"_s);
    }
    void stringMessages() { checkRow(); }

    void stringFixup_data()
    {
        const auto row = rowsOf([](const Rule::Type &rule, const QString &text, const QString &tidied) {
            QString fixed = text;
            made<RStringRuleValidator>(stringRule(rule))->fixup(fixed);
            QCOMPARE(fixed, tidied);
        });
        row("name", Rule::RULE_NAME, u" Main  Hall\u00A0"_s, u"Main  Hall"_s);
        row("nothing else of a host", Rule::RULE_DNS_NAME, u" Amp."_s, u"Amp."_s);
        row("blanks allowed", Rule::RULE_ASCII, u" a "_s, u" a "_s);
        row("blanks up to the pattern", Rule::RULE_PATTERN, u" a "_s, u" a "_s);
    }
    void stringFixup() { checkRow(); }

    void fixup_data()
    {
        const auto row = rowsOf([](const QString &text, const QString &decimal, const QString &integer) {
            QString asDecimal = text;
            RTextFieldDoubleValidator().fixup(asDecimal);
            QCOMPARE(asDecimal, decimal);
            QString asInteger = text;
            RTextFieldIntValidator().fixup(asInteger);
            QCOMPARE(asInteger, integer);
        });
        row("blanks", " 5 ", "5", "5");
        row("comma", "1,50", "1.50", "1,50");
        row("trailing separator", "5,", "5", "5,");
        row("leading zeros", "-007", "-7", "-7");
        row("true minus", "\u221207", "-7", "-7");
        row("zeros before a fraction", "00.5", "0.5", "0.5");
        row("zero", "000", "0", "0");
        row("nothing to tidy", "-", "-", "-");
        row("out of range stays", "99999", "99999", "99999");
    }
    void fixup() { checkRow(); }

    void changesRevalidate()
    {
        RTextFieldPinValidator pin;
        QSignalSpy pinSpy(&pin, &QValidator::changed);
        pin.setProperty("minimumLength", 6);
        QCOMPARE(pinSpy.count(), 1);
        QCOMPARE(stateOf(pin, QStringLiteral("14701")), QValidator::Intermediate);

        RStringRuleValidator string;
        QSignalSpy spy(&string, &QValidator::changed);
        int changes = 0;
        for (const char *property : {"rule", "minimumLength", "maximumLength", "maximumBytes", "pattern"}) {
            string.setProperty(property, 4);
            QCOMPARE(spy.count(), ++changes);
            string.setProperty(property, 4);
            QCOMPARE(spy.count(), changes);
        }
    }
};

template struct TestClass<tst_FieldValidators>;
#include "tst_FieldValidators.moc"
