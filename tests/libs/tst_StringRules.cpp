#include "support/TestProgram.h"

#include <tamblecommon-common/StringRules.h>

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace tamble::common;
using enum StringState;

class tst_StringRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rule_data();
    void rule();
    void limits_data();
    void limits();
    void faultData_data();
    void faultData();
    void pattern_data();
    void pattern();
    void illFormedPattern_data();
    void illFormedPattern();
    void endlessBacktrackingIsGivenUp();
    void capDnsName();
};

void tst_StringRules::rule_data()
{
    QTest::addColumn<StringRule>("rule");
    QTest::addColumn<QString>("text");
    QTest::addColumn<StringState>("state");
    QTest::addColumn<StringFault>("fault");

    const auto add = [](const char *name, StringRule rule, const QString &text, StringState state,
                        StringFault fault = StringFault::None) {
        QTest::newRow(name) << rule << text << state << fault;
    };
    using enum StringFault;
    using Rule = StringRule;

    add("any: empty", Rule::Any, u""_s, Acceptable);
    add("any: all scripts", Rule::Any, u" Gr\u00F6\u00DFe \u97F3 \U0001F3A7 "_s, Acceptable);
    add("any: no tab", Rule::Any, u"a\tb"_s, Invalid, ForbiddenCharacter);
    add("any: no C1 control", Rule::Any, u"a\u0085"_s, Invalid, ForbiddenCharacter);
    add("any: no half pair", Rule::Any, QString(QChar(0xD83C)), Invalid, ForbiddenCharacter);

    add("ascii: both ends of the range", Rule::Ascii, u" ~"_s, Acceptable);
    add("ascii: no delete", Rule::Ascii, u"\u007F"_s, Invalid, ForbiddenCharacter);
    add("ascii: no umlaut", Rule::Ascii, u"\u00FC"_s, Invalid, ForbiddenCharacter);

    add("alphanumeric", Rule::Alphanumeric, u"azAZ09"_s, Acceptable);
    add("alphanumeric: no underscore", Rule::Alphanumeric, u"a_b"_s, Invalid, ForbiddenCharacter);
    add("alphanumeric: no foreign digit", Rule::Alphanumeric, u"\u0663"_s, Invalid, ForbiddenCharacter);

    add("name: inner blank", Rule::Name, u"Main Hall"_s, Acceptable);
    add("name: empty", Rule::Name, u""_s, Intermediate, TooShort);
    add("name: leading blank", Rule::Name, u" a"_s, Intermediate, OuterBlank);
    add("name: trailing no-break space", Rule::Name, u"a\u00A0"_s, Intermediate, OuterBlank);

    add("file name", Rule::FileName, u"Show 1.v2.cfg"_s, Acceptable);
    add("file name: leading dot", Rule::FileName, u".hidden"_s, Acceptable);
    for (const char c : {'/', '\\', ':', '*', '?', '"', '<', '>', '|'})
        QTest::addRow("file name: no %c", c)
            << Rule::FileName << QString(QLatin1Char(c)) << Invalid << ForbiddenCharacter;
    add("file name: trailing dot", Rule::FileName, u"a."_s, Intermediate, TrailingDot);
    add("file name: parent folder", Rule::FileName, u".."_s, Intermediate, TrailingDot);
    add("file name: device", Rule::FileName, u"nUl"_s, Intermediate, ReservedName);
    add("file name: device with extensions", Rule::FileName, u"COM1.tar.gz"_s, Intermediate, ReservedName);
    add("file name: device and blank", Rule::FileName, u"con .txt"_s, Intermediate, ReservedName);
    add("file name: device grown into a word", Rule::FileName, u"console.txt"_s, Acceptable);
    add("file name: no device 0", Rule::FileName, u"LPT0"_s, Acceptable);

    const QString label63(63, u'a');
    add("dns: labels", Rule::DnsName, u"a-1.example.com"_s, Acceptable);
    add("dns: digits", Rule::DnsName, u"10.0"_s, Acceptable);
    add("dns: no capital", Rule::DnsName, u"Amp"_s, Invalid, ForbiddenCharacter);
    add("dns: no underscore", Rule::DnsName, u"a_b"_s, Invalid, ForbiddenCharacter);
    add("dns: empty", Rule::DnsName, u""_s, Intermediate, TooShort);
    add("dns: leading dot", Rule::DnsName, u".a"_s, Intermediate, EmptyLabel);
    add("dns: trailing dot", Rule::DnsName, u"a."_s, Intermediate, EmptyLabel);
    add("dns: leading hyphen", Rule::DnsName, u"a.-b"_s, Intermediate, LabelHyphen);
    add("dns: trailing hyphen", Rule::DnsName, u"a-.b"_s, Intermediate, LabelHyphen);
    add("dns: longest label", Rule::DnsName, u"a."_s + label63, Acceptable);
    add("dns: long label may still get a dot", Rule::DnsName, label63 + u'a', Intermediate, LabelTooLong);
    const QString labels192 = (label63 + u'.').repeated(3);
    add("dns: longest name", Rule::DnsName, labels192 + QString(61, u'b'), Acceptable);
    add("dns: too long", Rule::DnsName, labels192 + QString(62, u'b'), Invalid, TooLong);
    add("cap dns: capitals", Rule::CapDnsName, u"Amp-7.Rack"_s, Acceptable);
    add("cap dns: no umlaut", Rule::CapDnsName, u"\u00C4"_s, Invalid, ForbiddenCharacter);

    add("hex: pairs in both cases", Rule::Hex, u"09afAF"_s, Acceptable);
    add("hex: empty", Rule::Hex, u""_s, Acceptable);
    add("hex: half a byte", Rule::Hex, u"abc"_s, Intermediate, OddLength);
    add("hex: no g", Rule::Hex, u"ag"_s, Invalid, ForbiddenCharacter);

    add("password: eight", Rule::Password, u"!Aa0~xyz"_s, Acceptable);
    add("password: seven", Rule::Password, u"!Aa0~xy"_s, Intermediate, TooShort);
    add("password: no blank", Rule::Password, u"correct horse"_s, Invalid, ForbiddenCharacter);

    add("unknown rule counts as any", static_cast<StringRule>(42), u"\u00FC"_s, Acceptable);
}

void tst_StringRules::rule()
{
    QFETCH(StringRule, rule);
    QFETCH(QString, text);
    QFETCH(StringState, state);
    QFETCH(StringFault, fault);

    const StringVerdict verdict = validate(text, rule);
    QCOMPARE(verdict.state, state);
    QCOMPARE(verdict.fault, fault);
}

void tst_StringRules::limits_data()
{
    QTest::addColumn<StringRule>("rule");
    QTest::addColumn<StringLimits>("limits");
    QTest::addColumn<QString>("text");
    QTest::addColumn<StringVerdict>("expected");

    const auto tooShort = [](qsizetype limit) {
        return StringVerdict{.state = Intermediate, .fault = StringFault::TooShort, .limit = limit};
    };
    const auto tooLong = [](qsizetype limit) {
        return StringVerdict{.state = Invalid, .fault = StringFault::TooLong, .limit = limit};
    };
    using Rule = StringRule;

    QTest::newRow("at the minimum") << Rule::Any << StringLimits{.minimumLength = 3} << u"abc"_s << StringVerdict{};
    QTest::newRow("below the minimum") << Rule::Any << StringLimits{.minimumLength = 3} << u"ab"_s << tooShort(3);
    QTest::newRow("at the maximum") << Rule::Any << StringLimits{.maximumLength = 3} << u"abc"_s << StringVerdict{};
    QTest::newRow("above the maximum") << Rule::Any << StringLimits{.maximumLength = 3} << u"abcd"_s << tooLong(3);
    QTest::newRow("pairs count once") << Rule::Any << StringLimits{.maximumLength = 2} << u"\U0001F3A7\U0001F3A7"_s
                                      << StringVerdict{};
    QTest::newRow("bytes are those of UTF-8")
        << Rule::Any << StringLimits{.maximumBytes = 3} << u"a\u00FC"_s << StringVerdict{};
    QTest::newRow("too many bytes") << Rule::Any << StringLimits{.maximumBytes = 3} << u"\u00FC\u00FC"_s
                                    << StringVerdict{.state = Invalid, .fault = StringFault::TooManyBytes, .limit = 3};
    QTest::newRow("negative limits are not set")
        << Rule::Any << StringLimits{-1, -1, -1, {}} << u"abc"_s << StringVerdict{};
    QTest::newRow("minimum above maximum accepts nothing")
        << Rule::Any << StringLimits{.minimumLength = 4, .maximumLength = 2} << u"ab"_s << tooShort(4);
    QTest::newRow("password minimum raised")
        << Rule::Password << StringLimits{.minimumLength = 10} << u"abcdefghi"_s << tooShort(10);
    QTest::newRow("password minimum not lowered")
        << Rule::Password << StringLimits{.minimumLength = 4} << u"abcdefg"_s << tooShort(8);
    QTest::newRow("dns maximum lowered") << Rule::DnsName << StringLimits{.maximumLength = 5} << u"abcdef"_s
                                         << tooLong(5);
    QTest::newRow("dns maximum not raised")
        << Rule::DnsName << StringLimits{.maximumLength = 300} << u"a."_s.repeated(127) << tooLong(253);
    QTest::newRow("limits apply to patterns")
        << Rule::Pattern << StringLimits{.maximumLength = 2, .pattern = StringPattern(u"a+"_s)} << u"aaa"_s
        << tooLong(2);
}

void tst_StringRules::limits()
{
    QFETCH(StringRule, rule);
    QFETCH(StringLimits, limits);
    QFETCH(QString, text);
    QFETCH(StringVerdict, expected);
    const StringVerdict verdict = validate(text, rule, limits);
    QVERIFY2(verdict == expected, qPrintable(QDebug::toString(verdict)));
}

void tst_StringRules::faultData_data()
{
    QTest::addColumn<StringRule>("rule");
    QTest::addColumn<QString>("text");
    QTest::addColumn<qsizetype>("position");
    QTest::addColumn<qsizetype>("limit");
    QTest::addColumn<char32_t>("character");

    QTest::newRow("first forbidden character")
        << StringRule::Ascii << u"ab\u00FC\u00E4"_s << qsizetype(2) << qsizetype(0) << U'\u00FC';
    QTest::newRow("forbidden pair") << StringRule::Ascii << u"a\U0001F3A7"_s << qsizetype(1) << qsizetype(0)
                                    << U'\U0001F3A7';
    QTest::newRow("trailing blank") << StringRule::Name << u"ab "_s << qsizetype(2) << qsizetype(0) << U'\0';
    QTest::newRow("empty inner label") << StringRule::DnsName << u"a..b"_s << qsizetype(2) << qsizetype(0) << U'\0';
    QTest::newRow("second label too long")
        << StringRule::DnsName << u"a."_s + QString(64, u'b') << qsizetype(2) << qsizetype(63) << U'\0';
    QTest::newRow("hyphen before a dot") << StringRule::DnsName << u"a.b-.c"_s << qsizetype(3) << qsizetype(0) << U'\0';
}

void tst_StringRules::faultData()
{
    QFETCH(StringRule, rule);
    QFETCH(QString, text);
    const StringVerdict verdict = validate(text, rule);
    QTEST(verdict.position, "position");
    QTEST(verdict.limit, "limit");
    QTEST(verdict.character, "character");
}

void tst_StringRules::pattern_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");
    QTest::addColumn<StringState>("state");

    QTest::newRow("whole text") << u"[A-Z]\\d{3}"_s << u"K123"_s << Acceptable;
    QTest::newRow("beginning") << u"[A-Z]\\d{3}"_s << u"K12"_s << Intermediate;
    QTest::newRow("nothing yet") << u"[A-Z]\\d{3}"_s << u""_s << Intermediate;
    QTest::newRow("more than the whole") << u"[A-Z]\\d{3}"_s << u"K1234"_s << Invalid;
    QTest::newRow("wrong from the start") << u"[A-Z]\\d{3}"_s << u"k"_s << Invalid;
    QTest::newRow("only part of the text") << u"b"_s << u"abc"_s << Invalid;
    QTest::newRow("later alternative is whole") << u"a|ab"_s << u"ab"_s << Acceptable;
    QTest::newRow("shorter alternative is complete") << u"abc|ab"_s << u"ab"_s << Acceptable;
    QTest::newRow("trailing line end is text") << u"a"_s << u"a\n"_s << Invalid;
    QTest::newRow("empty pattern restricts nothing") << u""_s << u"x"_s << Acceptable;
}

void tst_StringRules::pattern()
{
    QFETCH(QString, pattern);
    QFETCH(QString, text);
    const StringLimits limits{.pattern = StringPattern(pattern)};
    QVERIFY(limits.pattern.isWellFormed());
    QTEST(validate(text, StringRule::Pattern, limits).state, "state");
}

void tst_StringRules::illFormedPattern_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::newRow("open group") << u"(a"_s;
    QTest::newRow("closes a group it did not open") << u"a)(b"_s;
    QTest::newRow("nothing to repeat") << u"*"_s;
}

void tst_StringRules::illFormedPattern()
{
    QFETCH(QString, pattern);
    const StringLimits limits{.pattern = StringPattern(pattern)};
    QVERIFY(!limits.pattern.isWellFormed());
    QVERIFY(!limits.pattern.errorText().isEmpty());
    QVERIFY(validate(u"anything", StringRule::Pattern, limits).isAcceptable());
}

void tst_StringRules::endlessBacktrackingIsGivenUp()
{
    const StringLimits limits{.pattern = StringPattern(u"(a+)+b"_s)};
    const QString text = QString(64, u'a') + u'c';

    QElapsedTimer timer;
    timer.start();
    QCOMPARE(validate(text, StringRule::Pattern, limits).state, Intermediate);
    // Without a limit this takes years.
    QVERIFY(timer.elapsed() < 5000);
}

void tst_StringRules::capDnsName()
{
    QVERIFY(validateCapDnsName(u"Amp-7.rack").isAcceptable());
    QCOMPARE(validateCapDnsName(u"Amp-").fault, StringFault::LabelHyphen);
}

template struct TestClass<tst_StringRules>;
#include "tst_StringRules.moc"
