#include "style/StyleTestPaths.h"
#include "style/language/RulePrinter.h"
#include "style/resolution/StyleInfoText.h"
#include "style/resolution/StyleResolver.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <algorithm>
#include <ctime>
#include <limits>

using namespace tamble::client;

namespace {

/// "selector [a,b,c]" for each match, from the weakest to the strongest.
QStringList matchesOf(const StyleSheet &sheet, const QString &path)
{
    StylePathPool pool;
    QStringList result;
    for (const StyleMatch &match : StyleResolver(sheet).matches(*pathFrom(pool, path))) {
        const std::string selector = selectorText(sheet.names(), sheet.tree(), match.node);
        result.append(QString::fromStdString(selector + ' ' + match.specificity.text()));
    }
    return result;
}

/// Look-ups that resolving the last of `paths` takes after the others.
std::size_t lookUpsFor(const StyleSheet &sheet, const QStringList &paths)
{
    StylePathPool pool;
    StyleResolver resolver(sheet);
    std::size_t before = 0;
    for (const QString &path : paths) {
        before = resolver.lookUpCount();
        resolver.resolve(*pathFrom(pool, path));
    }
    return resolver.lookUpCount() - before;
}

/// Processor time of merging a rule of `count` names, and of matching as many selectors to a path of as many classes;
/// NaN when the results lack any.
double secondsForNamesAndWords(int count)
{
    // Distinct ones in an order that is not the alphabet's.
    QString declarations;
    QString selectors;
    QString name;
    for (int i = count; i > 0; --i) {
        declarations += QStringLiteral("k%1: v; ").arg(i);
        selectors += QStringLiteral(".c%1,").arg(i);
        name += QStringLiteral("c%1 ").arg(i);
    }
    const std::clock_t start = std::clock();
    const StyleSheet names = sheetFrom("A { " + declarations + "}");
    const StyleSheet words = sheetFrom(selectors + "A { k: v }");
    StylePathPool pool;
    const bool complete =
        StyleResolver(names).resolve(*pathFrom(pool, "A")).all().size() == std::size_t(count) &&
        StyleResolver(words).matches(*pathFrom(pool, "A." + name)).size() == std::size_t(count) + 1 &&
        StyleResolver(words).matches(*pathFrom(pool, "A." + name + "/A." + name)).size() == std::size_t(count) + 1;
    const double seconds = double(std::clock() - start) / CLOCKS_PER_SEC;
    return complete ? seconds : std::numeric_limits<double>::quiet_NaN();
}

} // namespace

/// Which selectors match a style path, and how many look-ups that takes.
class tst_StyleMatcher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matches_data()
    {
        const auto row = rowsOf([](const QString &selectors, const QString &path, const QStringList &expected) {
            QCOMPARE(matchesOf(sheetFrom(selectors + " { k: v }"), path), expected);
        });
        row("type", "A, B", "A", {"A [0,0,1]"});
        row("only the innermost element is matched from the root", "A", "A/B", {});
        row("class alone", ".x", "A.y x", {".x [0,1,0]"});
        row("every piece of a compound selector", "A.x::s, A.y, A::t, B.x", "A.x::s", {"A.x::s [1,1,1]"});
        row("pieces in any order", "A.y.x::t::s, A::s.x", "A.x y::s t", {"A::s.x [1,1,1]", "A.y.x::t::s [2,2,1]"});
        row("class of another element", "A.x", "A/B.x", {});
        row("state before class before type", "A.x.y, A::s, .x, A", "A.x y::s",
            {"A [0,0,1]", ".x [0,1,0]", "A.x.y [0,2,1]", "A::s [1,0,1]"});

        row("direct child skips nothing", "A > B", "A/X/B", {});
        row("direct child of a compound", "A.x::s > B.y", "A.x::s/B.y", {"A.x::s > B.y [1,2,2]"});
        row("descendant at depth 3", "A B", "A/X/X/B", {"A B [0,0,2]"});
        row("an element is not its own ancestor", "A A, A > A", "A", {});
        row("child and descendant reach the same element", "A > B, A B", "A/B", {"A > B [0,0,2]", "A B [0,0,2]"});
        row("descendant of a child", "A B > C", "A/X/B/C", {"A B > C [0,0,3]"});
        row("child of a descendant", "A > B C", "A/B/X/C", {"A > B C [0,0,3]"});
        row("child step counts from where the descendant matched", "A > B C", "A/X/B/C", {});
        row("class alone as ancestor", ".x B", "A.x/X/B", {".x B [0,1,1]"});

        row("nearest ancestor ends the search", "R > A B", "R/A/X/A/B", {});
        row("nearest ancestor counts though its class differs", "A.x B", "A.x/A/B", {});
        row("nearest ancestor of any selector behind the step", "A C, B C", "A/B/C", {"B C [0,0,2]"});
        row("each selector has its own nearest ancestor", "A C, B D", "A/B/X/C", {"A C [0,0,2]"});
        row("every branch at the nearest ancestor", "A C, .x C, A.x C", "A.x/C",
            {"A C [0,0,2]", ".x C [0,1,1]", "A.x C [0,1,2]"});
    }
    void matches() { checkRow(); }

    void wordsAreNoKeysOfTheTree_data()
    {
        const auto row = rowsOf([](const QString &typeName, const QString &name, const QString &state) {
            const StyleSheet sheet = sheetFrom("A B, .x B, A::s B, .x, A::s, B.y { k: v }");
            StylePathPool pool;
            StyleResolver resolver(sheet);
            const StylePathRef alone = pool.child({}, typeName, name, state);
            QVERIFY(resolver.matches(*alone).empty());
            QVERIFY(resolver.matches(*pool.child(alone, u"B", u"", u"")).empty());
            // Nor do they lead from B to the element around.
            const StylePathRef between = pool.child(pool.child({}, u"A", u"y", u""), typeName, name, state);
            QCOMPARE(resolver.matches(*pool.child(between, u"B", u"", u"")),
                     resolver.matches(*pathFrom(pool, "A.y/Other/B")));
        });
        row("type spelt as a class", ".x", "", "");
        row("type spelt as a state", "::s", "", "");
        row("type spelt as the same-element step", "&", "", "");
        row("state spelt as the descendant step", "Z", "", "desc::");
        row("class spelt as a state", "Z", "::s", "");
        row("no words at all", "", "", "");
    }
    void wordsAreNoKeysOfTheTree() { checkRow(); }

    void repeatedWordsMatchByEachRoute()
    {
        const StyleSheet sheet = sheetFrom(".x.x A::s { k: v }");
        StylePathPool pool;
        const auto matches = StyleResolver(sheet).matches(*pathFrom(pool, "B.x y x x/A::s s"));
        QCOMPARE(matches.size(), std::size_t(1));
        QCOMPARE(matches.front().routes, 18u); // 3 × 3 for the class, 2 for the state
        QCOMPARE(matches.front().specificity, (Specificity{1, 2, 1}));
    }

    void declarationsOnASameElementStep()
    {
        HandMadeTree hand;
        const PropertySpec spec{"k", {"v"}, {1, 1}};
        hand.tree.attach(hand.node({"A", "&"}), &spec);
        hand.tree.attach(hand.node({"A", "&", ".x"}), &spec);
        StyleMatcher matcher(hand.names, hand.tree);
        const auto words = matcher.words({"A", {"x"}, {}});
        std::vector<StyleMatch> matches;
        matcher.match({words, nullptr, nullptr}, matches);
        QCOMPARE(matches.size(), std::size_t(2));
        QCOMPARE(matches[0].specificity, (Specificity{0, 0, 1}));
        QCOMPARE(matches[1].specificity, (Specificity{0, 1, 1}));
    }

    void costDoesNotDependOnOtherRules()
    {
        QString text = "RButton, RButton.red::hovered, RPanel RButton { k: v }\n";
        const QStringList path = {"RRoot/RPanel/RButton.red::hovered"};
        const std::size_t few = lookUpsFor(sheetFrom(text), path);
        for (int i = 0; i < 1'000; ++i)
            text +=
                QStringLiteral("RButton.v%1::hovered, RButton%1, RPanel%1 > RButton, RPanel .v%1 { k: v }\n").arg(i);
        // One more: behind RPanel now stands a class that asks for the elements around.
        QVERIFY(lookUpsFor(sheetFrom(text), path) <= few + 1);
        QVERIFY(few <= 3 * (1 + 1 + 1) * 3);
    }

    void costOfDescendantChains()
    {
        // Every mixture of descendant and child steps over one type: 2^10 selectors of eleven elements.
        QString selectors;
        for (int mixture = 0; mixture < 1 << 10; ++mixture) {
            QString selector = "a";
            for (int step = 0; step < 10; ++step)
                selector += (mixture >> step & 1) ? " > a" : " a";
            selectors += (mixture ? ", " : "") + selector;
        }
        const StyleSheet sheet = sheetFrom(selectors + "{ k: v }");
        const QString deep = QStringList(300, "a").join(u'/');
        // A node of the tree is met once; it asks for "&", "::desc::" and the type on the parent and on one ancestor.
        QVERIFY(lookUpsFor(sheet, {deep, deep + "/a"}) <= 4u * sheet.tree().nodeCount());
        QCOMPARE(matchesOf(sheet, QStringList(20, "a").join(u'/')).size(), 1 << 10);

        // Steps that never fit walk outward to the end, each once.
        const StyleSheet vain = sheetFrom("z a a a a a a a a { k: v }");
        QVERIFY(lookUpsFor(vain, {deep, deep + "/a"}) <= 300 + 4u * vain.tree().nodeCount());
        // Elements whose words the sheet does not know are not even asked.
        const QString unknown = QStringList(300, "x.y::z").join(u'/');
        QVERIFY(lookUpsFor(vain, {unknown, unknown + "/a"}) <= 4);
    }

    void costOfRepeatedWords()
    {
        const StyleSheet sheet = sheetFrom("A" + QStringLiteral(".x").repeated(40) + " { k: v }");
        const QString path = "A." + QStringLiteral("x ").repeated(40);
        QVERIFY(lookUpsFor(sheet, {path}) <= 4u * 41);
        StylePathPool pool;
        QCOMPARE(StyleResolver(sheet).matches(*pathFrom(pool, path)).front().routes,
                 std::numeric_limits<std::uint32_t>::max());
        QVERIFY(styleInfoText(sheet, *pathFrom(pool, path)).size() < 10'000);
    }

    void costOfManyNamesAndWordsIsLinear()
    {
        // In processor time, which other programs do not add to; eight times as many would take 64 times as long if
        // each were compared with each.
        double few = secondsForNamesAndWords(10'000);
        double many = secondsForNamesAndWords(80'000);
        for (int round = 0; round < 2; ++round) {
            few = std::min(few, secondsForNamesAndWords(10'000));
            many = std::min(many, secondsForNamesAndWords(80'000));
        }
        QVERIFY2(many < 32 * few, qPrintable(QStringLiteral("%1 s for 10,000, %2 s for 80,000").arg(few).arg(many)));
    }

    void knownPathsAndElementsCostNothing()
    {
        const StyleSheet sheet = sheetFrom("A { k: v } A B, B { l: v }");
        QCOMPARE(lookUpsFor(sheet, {"A/X/B", "A/X/B"}), std::size_t(0));
        QCOMPARE(lookUpsFor(sheet, {"A/X/B", "A/X"}), std::size_t(0)); // the way there was resolved too
        QCOMPARE(lookUpsFor(sheet, {"A/X", "A/X/Y"}), std::size_t(0)); // the sheet knows none of its words
        // B; then "&", "::desc::" and, on the nearest known ancestor, A; then "&" behind that.
        QCOMPARE(lookUpsFor(sheet, {"A/X", "A/X/B"}), std::size_t(5));
    }
};

template struct TestClass<tst_StyleMatcher>;
#include "tst_StyleMatcher.moc"
