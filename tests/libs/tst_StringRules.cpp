#include "support/Rows.h"
#include "support/TestProgram.h"

#include <tamblecommon-common/StringRules.h>

#include <QElapsedTimer>

using namespace Qt::StringLiterals;
using namespace tamble::common;
using enum StringState;

class tst_StringRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rule_data()
    {
        const auto add =
            rowsOf([](const StringRule &rule, const QString &text, const StringState &state, const StringFault &fault) {
                const StringVerdict verdict = validate(text, rule);
                QCOMPARE(verdict.state, state);
                QCOMPARE(verdict.fault, fault);
            });
        using enum StringFault;
        using Rule = StringRule;

        add("any: all scripts", Rule::Any, u" Gr\u00F6\u00DFe \u97F3 \U0001F3A7 "_s, Acceptable, None);
        add("any: no tab", Rule::Any, u"a\tb"_s, Invalid, ForbiddenCharacter);
        add("any: no C1 control", Rule::Any, u"a\u0085"_s, Invalid, ForbiddenCharacter);
        add("any: no half pair", Rule::Any, QString(QChar(0xD83C)), Invalid, ForbiddenCharacter);

        add("ascii: both ends of the range", Rule::Ascii, u" ~"_s, Acceptable, None);
        add("ascii: no delete", Rule::Ascii, u"\u007F"_s, Invalid, ForbiddenCharacter);
        add("alphanumeric", Rule::Alphanumeric, u"azAZ09"_s, Acceptable, None);

        add("alphanumeric: no underscore", Rule::Alphanumeric, u"a_b"_s, Invalid, ForbiddenCharacter);
        add("alphanumeric: no foreign digit", Rule::Alphanumeric, u"\u0663"_s, Invalid, ForbiddenCharacter);
        add("name: inner blank", Rule::Name, u"Main Hall"_s, Acceptable, None);
        add("name: empty", Rule::Name, u""_s, Intermediate, TooShort);

        add("name: leading blank", Rule::Name, u" a"_s, Intermediate, OuterBlank);
        add("name: trailing no-break space", Rule::Name, u"a\u00A0"_s, Intermediate, OuterBlank);

        add("file name: leading dot", Rule::FileName, u".hidden"_s, Acceptable, None);
        for (const char c : {'/', '\\', ':', '*', '?', '"', '<', '>', '|'})
            add(QByteArray("file name: no ").append(c), Rule::FileName, QString(QLatin1Char(c)), Invalid,
                ForbiddenCharacter);
        add("file name: trailing dot", Rule::FileName, u"a."_s, Intermediate, TrailingDot);
        add("file name: parent folder", Rule::FileName, u".."_s, Intermediate, TrailingDot);
        add("file name: device", Rule::FileName, u"nUl"_s, Intermediate, ReservedName);
        add("file name: device with extensions", Rule::FileName, u"COM1.tar.gz"_s, Intermediate, ReservedName);
        add("file name: device and blank", Rule::FileName, u"con .txt"_s, Intermediate, ReservedName);
        add("file name: device grown into a word", Rule::FileName, u"console.txt"_s, Acceptable, None);
        add("file name: no device 0", Rule::FileName, u"LPT0"_s, Acceptable, None);

        const QString label63(63, u'a');
        add("dns: labels", Rule::DnsName, u"a-1.example.com"_s, Acceptable, None);
        add("dns: no capital", Rule::DnsName, u"Amp"_s, Invalid, ForbiddenCharacter);
        add("dns: no underscore", Rule::DnsName, u"a_b"_s, Invalid, ForbiddenCharacter);
        add("dns: empty", Rule::DnsName, u""_s, Intermediate, TooShort);
        add("dns: leading dot", Rule::DnsName, u".a"_s, Intermediate, EmptyLabel);
        add("dns: trailing dot", Rule::DnsName, u"a."_s, Intermediate, EmptyLabel);
        add("dns: leading hyphen", Rule::DnsName, u"a.-b"_s, Intermediate, LabelHyphen);
        add("dns: trailing hyphen", Rule::DnsName, u"a-.b"_s, Intermediate, LabelHyphen);
        add("dns: longest label", Rule::DnsName, u"a."_s + label63, Acceptable, None);
        add("dns: long label may still get a dot", Rule::DnsName, label63 + u'a', Intermediate, LabelTooLong);
        const QString labels192 = (label63 + u'.').repeated(3);
        add("dns: longest name", Rule::DnsName, labels192 + QString(61, u'b'), Acceptable, None);
        add("dns: too long", Rule::DnsName, labels192 + QString(62, u'b'), Invalid, TooLong);
        add("cap dns: capitals", Rule::CapDnsName, u"Amp-7.Rack"_s, Acceptable, None);
        add("cap dns: no umlaut", Rule::CapDnsName, u"\u00C4"_s, Invalid, ForbiddenCharacter);

        add("hex: pairs in both cases", Rule::Hex, u"09afAF"_s, Acceptable, None);
        add("hex: empty", Rule::Hex, u""_s, Acceptable, None);
        add("hex: half a byte", Rule::Hex, u"abc"_s, Intermediate, OddLength);
        add("hex: no g", Rule::Hex, u"ag"_s, Invalid, ForbiddenCharacter);
        add("password: eight", Rule::Password, u"!Aa0~xyz"_s, Acceptable, None);

        add("password: seven", Rule::Password, u"!Aa0~xy"_s, Intermediate, TooShort);
        add("password: no blank", Rule::Password, u"correct horse"_s, Invalid, ForbiddenCharacter);

        add("unknown rule counts as any", static_cast<StringRule>(42), u"\u00FC"_s, Acceptable, None);
    }
    void rule() { checkRow(); }

    void limits_data()
    {
        const auto row = rowsOf(
            [](const StringRule &rule, const StringLimits &limits, const QString &text, const StringVerdict &expected) {
                const StringVerdict verdict = validate(text, rule, limits);
                QVERIFY2(verdict == expected, qPrintable(QDebug::toString(verdict)));
            });
        const auto tooShort = [](qsizetype limit) {
            return StringVerdict{.state = Intermediate, .fault = StringFault::TooShort, .limit = limit};
        };
        const auto tooLong = [](qsizetype limit) {
            return StringVerdict{.state = Invalid, .fault = StringFault::TooLong, .limit = limit};
        };
        using Rule = StringRule;

        row("at the minimum", Rule::Any, {.minimumLength = 3}, u"abc"_s, {});
        row("below the minimum", Rule::Any, {.minimumLength = 3}, u"ab"_s, tooShort(3));
        row("at the maximum", Rule::Any, {.maximumLength = 3}, u"abc"_s, {});
        row("above the maximum", Rule::Any, {.maximumLength = 3}, u"abcd"_s, tooLong(3));
        row("pairs count once", Rule::Any, {.maximumLength = 2}, u"\U0001F3A7\U0001F3A7"_s, {});
        row("bytes are those of UTF-8", Rule::Any, {.maximumBytes = 3}, u"a\u00FC"_s, {});
        row("too many bytes", Rule::Any, {.maximumBytes = 3}, u"\u00FC\u00FC"_s,
            {.state = Invalid, .fault = StringFault::TooManyBytes, .limit = 3});
        row("negative limits are not set", Rule::Any, {-1, -1, -1, {}}, u"abc"_s, {});
        row("minimum above maximum accepts nothing", Rule::Any, {.minimumLength = 4, .maximumLength = 2}, u"ab"_s,
            tooShort(4));
        row("password minimum raised", Rule::Password, {.minimumLength = 10}, u"abcdefghi"_s, tooShort(10));
        row("password minimum not lowered", Rule::Password, {.minimumLength = 4}, u"abcdefg"_s, tooShort(8));
        row("dns maximum lowered", Rule::DnsName, {.maximumLength = 5}, u"abcdef"_s, tooLong(5));
        row("dns maximum not raised", Rule::DnsName, {.maximumLength = 300}, u"a."_s.repeated(127), tooLong(253));
        row("limits apply to patterns", Rule::Pattern, {.maximumLength = 2, .pattern = StringPattern(u"a+"_s)},
            u"aaa"_s, tooLong(2));
    }
    void limits() { checkRow(); }

    void faultData_data()
    {
        const auto row = rowsOf(
            [](const StringRule &rule, const QString &text, qsizetype position, qsizetype limit, char32_t character) {
                const StringVerdict verdict = validate(text, rule);
                QCOMPARE(verdict.position, position);
                QCOMPARE(verdict.limit, limit);
                QCOMPARE(verdict.character, character);
            });
        row("first forbidden character", StringRule::Ascii, u"ab\u00FC\u00E4"_s, qsizetype(2), qsizetype(0), U'\u00FC');
        row("forbidden pair", StringRule::Ascii, u"a\U0001F3A7"_s, qsizetype(1), qsizetype(0), U'\U0001F3A7');
        row("trailing blank", StringRule::Name, u"ab "_s, qsizetype(2), qsizetype(0), U'\0');
        row("empty inner label", StringRule::DnsName, u"a..b"_s, qsizetype(2), qsizetype(0), U'\0');
        row("second label too long", StringRule::DnsName, u"a."_s + QString(64, u'b'), qsizetype(2), qsizetype(63),
            U'\0');
        row("hyphen before a dot", StringRule::DnsName, u"a.b-.c"_s, qsizetype(3), qsizetype(0), U'\0');
    }
    void faultData() { checkRow(); }

    void pattern_data()
    {
        const auto row = rowsOf([](const QString &pattern, const QString &text, const StringState &state) {
            const StringLimits limits{.pattern = StringPattern(pattern)};
            QVERIFY(limits.pattern.isWellFormed());
            QCOMPARE(validate(text, StringRule::Pattern, limits).state, state);
        });
        row("whole text", u"[A-Z]\\d{3}"_s, u"K123"_s, Acceptable);
        row("beginning", u"[A-Z]\\d{3}"_s, u"K12"_s, Intermediate);
        row("nothing yet", u"[A-Z]\\d{3}"_s, u""_s, Intermediate);
        row("more than the whole", u"[A-Z]\\d{3}"_s, u"K1234"_s, Invalid);
        row("wrong from the start", u"[A-Z]\\d{3}"_s, u"k"_s, Invalid);
        row("only part of the text", u"b"_s, u"abc"_s, Invalid);
        row("later alternative is whole", u"a|ab"_s, u"ab"_s, Acceptable);
        row("shorter alternative is complete", u"abc|ab"_s, u"ab"_s, Acceptable);
        row("trailing line end is text", u"a"_s, u"a\n"_s, Invalid);
        row("empty pattern restricts nothing", u""_s, u"x"_s, Acceptable);
    }
    void pattern() { checkRow(); }

    void illFormedPattern_data()
    {
        const auto row = rowsOf([](const QString &pattern) {
            const StringLimits limits{.pattern = StringPattern(pattern)};
            QVERIFY(!limits.pattern.isWellFormed());
            QVERIFY(!limits.pattern.errorText().isEmpty());
            QVERIFY(validate(u"anything", StringRule::Pattern, limits).isAcceptable());
        });
        row("open group", u"(a"_s);
        row("closes a group it did not open", u"a)(b"_s);
        row("nothing to repeat", u"*"_s);
    }
    void illFormedPattern() { checkRow(); }

    void endlessBacktrackingIsGivenUp()
    {
        const StringLimits limits{.pattern = StringPattern(u"(a+)+b"_s)};
        const QString text = QString(64, u'a') + u'c';

        QElapsedTimer timer;
        timer.start();
        QCOMPARE(validate(text, StringRule::Pattern, limits).state, Intermediate);
        // Without a limit this takes years.
        QVERIFY(timer.elapsed() < 5000);
    }

    void capDnsName()
    {
        QVERIFY(validateCapDnsName(u"Amp-7.rack").isAcceptable());
        QCOMPARE(validateCapDnsName(u"Amp-").fault, StringFault::LabelHyphen);
    }
};

template struct TestClass<tst_StringRules>;
#include "tst_StringRules.moc"
