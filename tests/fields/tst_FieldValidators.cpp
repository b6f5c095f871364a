#include "fields/RTextFieldDoubleValidator.h"
#include "fields/RTextFieldIntValidator.h"
#include "fields/RTextFieldIpAddressValidator.h"
#include "fields/RTextFieldPinValidator.h"
#include "support/Numbers.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

using namespace tamble::client;

namespace {

QValidator::State stateOf(const QValidator &validator, QString text)
{
    int cursor = 0;
    return validator.validate(text, cursor);
}

} // namespace

class tst_FieldValidators : public QObject
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

    void pinMessages()
    {
        RTextFieldPinValidator validator;
        validator.setProperty("trivialAllowed", false);
        QCOMPARE(validator.message(QStringLiteral("12")), QStringLiteral("Enter 4 to 8 digits"));
        QCOMPARE(validator.message(QStringLiteral("1111")), QStringLiteral("This PIN is too easy to guess"));
        QCOMPARE(validator.message(QStringLiteral("1470")), QString());
    }

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

    void rangeChangeRevalidates()
    {
        RTextFieldPinValidator validator;
        QSignalSpy spy(&validator, &QValidator::changed);
        validator.setProperty("minimumLength", 6);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(stateOf(validator, QStringLiteral("14701")), QValidator::Intermediate);
    }
};

template struct TestClass<tst_FieldValidators>;
#include "tst_FieldValidators.moc"
