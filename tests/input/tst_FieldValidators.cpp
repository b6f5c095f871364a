#include "input/RTextFieldDoubleValidator.h"
#include "input/RTextFieldIntValidator.h"
#include "input/RTextFieldIpAddressValidator.h"
#include "input/RTextFieldPinValidator.h"
#include "support/Numbers.h"
#include "support/TestProgram.h"

#include <QtCore/QObject>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

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
    void decimals_data();
    void decimals();
    void integers_data();
    void integers();
    void addresses_data();
    void addresses();
    void pins_data();
    void pins();
    void pinMessages();
    void fixup_data();
    void fixup();
    void rangeChangeRevalidates();
};

void tst_FieldValidators::decimals_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("bottom");
    QTest::addColumn<double>("top");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QValidator::State>("state");

    QTest::newRow("in range") << "3.5" << -10.0 << 10.0 << 1 << QValidator::Acceptable;
    QTest::newRow("comma separates") << "3,5" << -10.0 << 10.0 << 1 << QValidator::Acceptable;
    QTest::newRow("no digit before the separator") << ".5" << -10.0 << 10.0 << 1 << QValidator::Acceptable;
    QTest::newRow("on the bound") << "-10" << -10.0 << 10.0 << 1 << QValidator::Acceptable;
    QTest::newRow("true minus") << QStringLiteral("\u22123,5") << -10.0 << 10.0 << 1 << QValidator::Acceptable;
    QTest::newRow("true minus, below") << QStringLiteral("\u221211") << -10.0 << 10.0 << 1 << QValidator::Intermediate;
    QTest::newRow("true minus, only positive") << QStringLiteral("\u2212") << 0.0 << 10.0 << 1 << QValidator::Invalid;
    QTest::newRow("empty") << "" << -10.0 << 10.0 << 1 << QValidator::Intermediate;
    QTest::newRow("sign alone") << "-" << -10.0 << 10.0 << 1 << QValidator::Intermediate;
    QTest::newRow("separator alone") << "," << -10.0 << 10.0 << 1 << QValidator::Intermediate;
    QTest::newRow("fraction to come") << "5." << -10.0 << 10.0 << 1 << QValidator::Intermediate;
    QTest::newRow("above the range") << "11" << -10.0 << 10.0 << 1 << QValidator::Intermediate;
    QTest::newRow("below the range") << "2" << 20.0 << 20000.0 << 1 << QValidator::Intermediate;
    QTest::newRow("blank behind") << "5 " << -10.0 << 10.0 << 1 << QValidator::Intermediate;
    QTest::newRow("blank inside") << "5 0" << -10.0 << 100.0 << 1 << QValidator::Invalid;
    QTest::newRow("second separator") << "1.2," << -10.0 << 10.0 << 2 << QValidator::Invalid;
    QTest::newRow("sign in the middle") << "1-" << -10.0 << 10.0 << 2 << QValidator::Invalid;
    QTest::newRow("exponent") << "1e3" << 0.0 << 1e4 << 2 << QValidator::Invalid;
    QTest::newRow("minus without negative numbers") << "-" << 0.0 << 10.0 << 1 << QValidator::Invalid;
    QTest::newRow("separator without decimals") << "5." << 0.0 << 10.0 << 0 << QValidator::Invalid;
    QTest::newRow("too many decimals") << "0.12" << 0.0 << 10.0 << 1 << QValidator::Invalid;
    QTest::newRow("any number of decimals") << "0.123456" << 0.0 << 10.0 << -1 << QValidator::Acceptable;
    QTest::newRow("15 digits") << "1234567890.12345" << 0.0 << infinity << 5 << QValidator::Acceptable;
    QTest::newRow("16 digits") << "12345678901.12345" << 0.0 << infinity << 5 << QValidator::Invalid;
    QTest::newRow("other digits") << QStringLiteral("\u0663") << 0.0 << 10.0 << 0 << QValidator::Invalid;
    QTest::newRow("open bounds") << "-12" << notANumber << notANumber << 0 << QValidator::Acceptable;
    QTest::newRow("reversed bounds") << "5" << 10.0 << 0.0 << 0 << QValidator::Intermediate;
}

void tst_FieldValidators::decimals()
{
    QFETCH(QString, text);
    QFETCH(double, bottom);
    QFETCH(double, top);
    QFETCH(int, decimals);
    QFETCH(QValidator::State, state);

    RTextFieldDoubleValidator validator;
    validator.setRange(bottom, top, decimals);
    QCOMPARE(stateOf(validator, text), state);
}

void tst_FieldValidators::integers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("bottom");
    QTest::addColumn<QValidator::State>("state");

    QTest::newRow("in range") << "48" << 1 << QValidator::Acceptable;
    QTest::newRow("plus") << "+48" << 1 << QValidator::Acceptable;
    QTest::newRow("outside") << "97" << 1 << QValidator::Intermediate;
    QTest::newRow("larger than an int, 10 digits") << "9999999999" << 1 << QValidator::Intermediate;
    QTest::newRow("11 digits") << "99999999999" << 1 << QValidator::Invalid;
    QTest::newRow("minus, only positive") << "-" << 0 << QValidator::Invalid;
    QTest::newRow("minus, negative too") << "-" << -1 << QValidator::Intermediate;
    QTest::newRow("true minus") << QStringLiteral("\u22123") << -5 << QValidator::Acceptable;
    QTest::newRow("separator") << "4.0" << 1 << QValidator::Invalid;
    QTest::newRow("blank in front") << " 4" << 1 << QValidator::Intermediate;
    QTest::newRow("hexadecimal") << "0x1" << 1 << QValidator::Invalid;
}

void tst_FieldValidators::integers()
{
    QFETCH(QString, text);
    QFETCH(int, bottom);
    QFETCH(QValidator::State, state);

    RTextFieldIntValidator validator;
    validator.setRange(bottom, 96);
    QCOMPARE(stateOf(validator, text), state);
}

void tst_FieldValidators::addresses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QValidator::State>("state");

    for (const char *address : {"192.168.1.10", "0.0.0.0", "255.255.255.255"})
        QTest::newRow(address) << QString::fromLatin1(address) << QValidator::Acceptable;
    for (const char *beginning : {"", "1", "192.", "192.168.1", "192.168.1.", " 1.2.3.4", "1.2.3.4 "})
        QTest::addRow("beginning \"%s\"", beginning) << QString::fromLatin1(beginning) << QValidator::Intermediate;
    for (const char *wrong :
         {".", "1..", "256", "1.2.3.2550", "01", "00", "1.2.3.4.", "1.2.3.4.5", "a", "1,2", "1 .2", "-1"})
        QTest::newRow(wrong) << QString::fromLatin1(wrong) << QValidator::Invalid;
}

void tst_FieldValidators::addresses()
{
    QFETCH(QString, text);
    QFETCH(QValidator::State, state);
    QCOMPARE(stateOf(RTextFieldIpAddressValidator(), text), state);
}

void tst_FieldValidators::pins_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("trivialAllowed");
    QTest::addColumn<QValidator::State>("state");

    QTest::newRow("shortest") << "1470" << false << QValidator::Acceptable;
    QTest::newRow("too short") << "147" << false << QValidator::Intermediate;
    QTest::newRow("longest") << "14701470" << false << QValidator::Acceptable;
    QTest::newRow("too long") << "147014701" << false << QValidator::Invalid;
    QTest::newRow("letter") << "14a" << false << QValidator::Invalid;
    QTest::newRow("blank") << "147 " << false << QValidator::Invalid;
    QTest::newRow("repeated digit") << "7777" << false << QValidator::Intermediate;
    QTest::newRow("run up") << "23456" << false << QValidator::Intermediate;
    QTest::newRow("run down") << "9876" << false << QValidator::Intermediate;
    QTest::newRow("broken run") << "12346" << false << QValidator::Acceptable;
    QTest::newRow("run where allowed") << "1234" << true << QValidator::Acceptable;
}

void tst_FieldValidators::pins()
{
    QFETCH(QString, text);
    QFETCH(bool, trivialAllowed);
    QFETCH(QValidator::State, state);

    RTextFieldPinValidator validator;
    validator.setProperty("trivialAllowed", trivialAllowed);
    QCOMPARE(stateOf(validator, text), state);
}

void tst_FieldValidators::pinMessages()
{
    RTextFieldPinValidator validator;
    validator.setProperty("trivialAllowed", false);
    QCOMPARE(validator.message(QStringLiteral("12")), QStringLiteral("Enter 4 to 8 digits"));
    QCOMPARE(validator.message(QStringLiteral("1111")), QStringLiteral("This PIN is too easy to guess"));
    QCOMPARE(validator.message(QStringLiteral("1470")), QString());
}

void tst_FieldValidators::fixup_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("decimal");
    QTest::addColumn<QString>("integer");

    QTest::newRow("blanks") << " 5 "
                            << "5"
                            << "5";
    QTest::newRow("comma") << "1,50"
                           << "1.50"
                           << "1,50";
    QTest::newRow("trailing separator") << "5,"
                                        << "5"
                                        << "5,";
    QTest::newRow("leading zeros") << "-007"
                                   << "-7"
                                   << "-7";
    QTest::newRow("true minus") << QStringLiteral("\u221207") << "-7"
                                << "-7";
    QTest::newRow("zeros before a fraction") << "00.5"
                                             << "0.5"
                                             << "0.5";
    QTest::newRow("zero") << "000"
                          << "0"
                          << "0";
    QTest::newRow("nothing to tidy") << "-"
                                     << "-"
                                     << "-";
    QTest::newRow("out of range stays") << "99999"
                                        << "99999"
                                        << "99999";
}

void tst_FieldValidators::fixup()
{
    QFETCH(QString, text);
    QFETCH(QString, decimal);
    QFETCH(QString, integer);

    QString asDecimal = text;
    RTextFieldDoubleValidator().fixup(asDecimal);
    QCOMPARE(asDecimal, decimal);
    QString asInteger = text;
    RTextFieldIntValidator().fixup(asInteger);
    QCOMPARE(asInteger, integer);
}

void tst_FieldValidators::rangeChangeRevalidates()
{
    RTextFieldPinValidator validator;
    QSignalSpy spy(&validator, &QValidator::changed);
    validator.setProperty("minimumLength", 6);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(stateOf(validator, QStringLiteral("14701")), QValidator::Intermediate);
}

template struct TestClass<tst_FieldValidators>;
#include "tst_FieldValidators.moc"
