#include "models/RowMatcher.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

using namespace tamble::client;

class tst_RowMatcher : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void patterns_data()
    {
        using enum RowMatcher::Syntax;
        const auto row =
            rowsOf([](RowMatcher::Syntax syntax, const QString &pattern, const QString &text, bool matches) {
                RowMatcher matcher;
                QVERIFY(matcher.setPattern(pattern, syntax));
                QCOMPARE(matcher.matches(text), matches);
            });
        row("part of the text, other case", Fixed, "PUT 1", "Input 10", true);
        row("signs stand for themselves", Fixed, "a.*", "abc", false);
        row("star", Wildcard, "in*2", "Main In 12 dB", true);
        row("star over slashes and lines", Wildcard, "a*d", "a/b\nd", true);
        row("question mark is one", Wildcard, "a?c", "ac", false);
        row("set", Wildcard, "ch[1-3]", "CH2", true);
        row("excluded set", Wildcard, "ch[!1-3]", "ch2", false);
        row("bracket in a set", Wildcard, "a[]x]", "a]", true);
        row("bracket excluded", Wildcard, "a[!]]", "a]", false);
        row("backslash in a set", Wildcard, "[\\d]", "5", false);
        row("dot is a dot", Wildcard, "1.5", "125", false);
        row("expression", Expression, "^in.*\\d$", "Input 7", true);
        row("expression that ends early", Expression, "^put", "Input", false);
    }
    void patterns() { checkRow(); }

    void illFormedKeepsTheOneBefore()
    {
        RowMatcher matcher;
        QVERIFY(matcher.setPattern(QStringLiteral("in"), RowMatcher::Syntax::Fixed));
        QVERIFY(!matcher.setPattern(QStringLiteral("(x"), RowMatcher::Syntax::Expression));
        QVERIFY(!matcher.setPattern(QStringLiteral("[x"), RowMatcher::Syntax::Wildcard));
        QVERIFY(matcher.matches(QStringLiteral("Input")));
        matcher.setCaseSensitivity(Qt::CaseSensitive);
        QVERIFY(!matcher.matches(QStringLiteral("Input")));
        QVERIFY(!matcher.matches(QStringLiteral("(x")));
        QVERIFY(matcher.matches(QStringLiteral("Main")));
    }
};

template struct TestClass<tst_RowMatcher>;
#include "tst_RowMatcher.moc"
