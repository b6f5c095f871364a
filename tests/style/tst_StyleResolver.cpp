#include "StyleTestPaths.h"
#include "style/RulePrinter.h"
#include "style/StyleInfoText.h"
#include "style/StyleResolver.h"
#include "style/StyleSheetParser.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtCore/QElapsedTimer>

#include <limits>

using namespace tamble::client;

namespace {

StyleSheet sheetFrom(const QString &text)
{
    return parseStdString(text.toStdString());
}

/// "name=value name=value", in the order of the map.
QString dumpOf(const DeclarationMap &declarations)
{
    QStringList result;
    for (const PropertySpec *declaration : declarations)
        result.append(
            QString::fromStdString(declaration->name + '=' + boost::get<std::string>(declaration->values.front())));
    return result.join(u' ');
}

QString resolved(const StyleSheet &sheet, const QString &path)
{
    StylePathPool pool;
    return dumpOf(StyleResolver(sheet).resolve(*pathFrom(pool, path)).all());
}

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

/// A selector tree by hand, for what no sheet text can say.
struct HandMadeTree
{
    SelectorTree::Node node(std::initializer_list<const char *> keys)
    {
        SelectorTree::Node result = SelectorTree::Root;
        for (const char *key : keys)
            result = tree.insert(result, names.intern(key));
        return result;
    }

    NameTable names;
    SelectorTree tree;
};

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

} // namespace

/// What a sheet gives to a style path: matching, the order of matches, merging, inheritance and the caches.
class tst_StyleResolver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matches_data()
    {
        const Rows<QString, QString, QStringList> row;
        row("type", "A, B", "A", {"A [0,0,1]"});
        row("only the innermost element is matched from the root", "A", "A/B", {});
        row("class alone", ".x", "A.y x", {".x [0,1,0]"});
        row("state behind a type", "A::x", "A::x", {"A::x [1,0,1]"});
        row("every piece of a compound selector", "A.x::s, A.y, A::t, B.x", "A.x::s", {"A.x::s [1,1,1]"});
        row("pieces in any order", "A.y.x::t::s, A::s.x", "A.x y::s t", {"A::s.x [1,1,1]", "A.y.x::t::s [2,2,1]"});
        row("class of another element", "A.x", "A/B.x", {});
        row("state before class before type", "A.x.y, A::s, .x, A", "A.x y::s",
            {"A [0,0,1]", ".x [0,1,0]", "A.x.y [0,2,1]", "A::s [1,0,1]"});

        row("direct child", "A > B", "A/B", {"A > B [0,0,2]"});
        row("direct child skips nothing", "A > B", "A/X/B", {});
        row("direct child of a compound", "A.x::s > B.y", "A.x::s/B.y", {"A.x::s > B.y [1,2,2]"});
        row("descendant at depth 1", "A B", "A/B", {"A B [0,0,2]"});
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

    void matches()
    {
        const auto &[selectors, path, expected] = Rows<QString, QString, QStringList>::current();
        QCOMPARE(matchesOf(sheetFrom(selectors + " { k: v }"), path), expected);
    }

    void wordsAreNoKeysOfTheTree_data()
    {
        const Rows<QString, QString, QString> row;
        row("type spelt as a class", ".x", "", "");
        row("type spelt as a state", "::s", "", "");
        row("type spelt as the same-element step", "&", "", "");
        row("state spelt as the descendant step", "Z", "", "desc::");
        row("class spelt as a state", "Z", "::s", "");
        row("no words at all", "", "", "");
    }

    void wordsAreNoKeysOfTheTree()
    {
        const auto &[typeName, name, state] = Rows<QString, QString, QString>::current();
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
    }

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

    void winner_data()
    {
        const Rows<QString, QString, QString> row;
        row("a state beats a class", "A::s { k: state }\nA.x { k: class }", "A.x::s", "k=state");
        row("a state beats many classes", "A::s { k: state }\nA.x.y.z { k: classes }", "A.x y z::s", "k=state");
        row("a class beats many types", ".x { k: class }\nA B C { k: types }", "A/B/C.x", "k=class");
        row("later line wins", "A.x { k: 1 }\nA.y { k: 2 }", "A.y x", "k=2");
        row("later column wins", "A.x { k: 1 } A.y { k: 2 }", "A.y x", "k=2");
        row("later line wins over the larger column", "          A.x { k: 1 }\nA.y { k: 2 }", "A.x y", "k=2");
        row("more specific wins though earlier", "A.x { k: 1 }\nA { k: 2 }", "A.x", "k=1");
        row("later rule of the same selector", "A { k: 1; l: 1 }\nA { k: 2 }", "A", "k=2 l=1");
        row("later declaration of a block", "A { k: 1; k: 2 }", "A", "k=2");
        row("names are merged in order", "A { m: 1; k: 1 }\nA.x { l: 2 }", "A.x", "k=1 l=2 m=1");
        row("each name on its own", "A.x { k: 1; l: 1 }\nA.y { l: 2; m: 2 }", "A.x y", "k=1 l=2 m=2");
    }

    void winner()
    {
        const auto &[sheet, path, expected] = Rows<QString, QString, QString>::current();
        QCOMPARE(resolved(sheetFrom(sheet), path), expected);
    }

    void positionsCountAgainstALessSpecificMatch()
    {
        // The second of two equally specific matches is held against the type's declaration, which stands later.
        const QString twoClasses = ".x { l: x }\n.y { k: y }\nA { k: type }";
        QCOMPARE(resolved(sheetFrom(twoClasses), "A.x y"), "k=type l=x");
        // On its own it is the first match of its specificity and wins as it should.
        QCOMPARE(resolved(sheetFrom(twoClasses), "A.y"), "k=y");
        // Standing later, it wins in either case.
        QCOMPARE(resolved(sheetFrom("A { k: type }\n.x { l: x }\n.y { k: y }"), "A.x y"), "k=y l=x");
    }

    void samePositionKeepsTheFirst()
    {
        HandMadeTree hand;
        const PropertySpec first{"k", {"first"}, {3, 7}};
        const PropertySpec second{"k", {"second"}, {3, 7}};
        const SelectorTree::Node x = hand.node({".x"});
        const SelectorTree::Node y = hand.node({".y"});
        hand.tree.attach(x, &first);
        hand.tree.attach(y, &second);
        const Specificity oneClass{0, 1, 0};
        QCOMPARE(dumpOf(mergeMatches(std::vector<StyleMatch>{{x, oneClass, 1}, {y, oneClass, 1}}, hand.tree)),
                 "k=first");
        QCOMPARE(dumpOf(mergeMatches(std::vector<StyleMatch>{{y, oneClass, 1}, {x, oneClass, 1}}, hand.tree)),
                 "k=second");
    }

    void userSheetWinsAtTheSamePosition()
    {
        const StyleSheet base = sheetFrom("A.x { k: base }");
        const StyleSheet user = sheetFrom("A.y { k: user }");
        QCOMPARE(resolved(StyleSheet::merged(base, user), "A.x y"), "k=user");
        QCOMPARE(resolved(StyleSheet::merged(user, base), "A.x y"), "k=base");
        // Otherwise the position decides, whichever sheet it is in.
        QCOMPARE(resolved(StyleSheet::merged(sheetFrom("\nA.x { k: base }"), user), "A.x y"), "k=base");
    }

    void orderOfClassWordsDoesNotMatter()
    {
        const StyleSheet sheet = sheetFrom("A.z { k: z; l: z }\nA.y { k: y }\nA { l: type; m: type }\nA.x { m: x }");
        const QString expected = resolved(sheet, "A.x y z");
        QCOMPARE(expected, "k=y l=z m=x");
        for (const char *path : {"A.x z y", "A.y x z", "A.y z x", "A.z x y", "A.z y x", "A.z z y x x"})
            QCOMPARE(resolved(sheet, path), expected);

        // Two selectors of one rule have their first declaration in common, which must not leave the order to the
        // words.
        const StyleSheet shared = sheetFrom("A.x, A.y { l: both }\nA.x { k: x }\nA { k: type }");
        QCOMPARE(resolved(shared, "A.y x"), "k=type l=both");
        QCOMPARE(resolved(shared, "A.x y"), "k=type l=both");
    }

    void inheritance_data()
    {
        const Rows<QString, QString> row;
        row("own", "A", "k=a l=a");
        row("nearer definition wins", "A/B", "a=b k=a l=b z=b");
        row("through elements without rules", "A/X/B/X/C", "a=b k=c l=b z=b");
        row("nearer though less specific", "A.x/B", "a=b k=x l=b z=b");
        row("whatever the selector looks at", "B/A", "a=b k=a l=a z=b");
        row("siblings do not inherit", "C", "k=c");
        row("nothing to inherit", "X/Y", "");
    }

    void inheritance()
    {
        const auto &[path, expected] = Rows<QString, QString>::current();
        QCOMPARE(resolved(sheetFrom("A { k: a; l: a } A.x { k: x } B { l: b; a: b; z: b } C { k: c }"), path),
                 expected);
    }

    void elementWithoutMatchSharesTheParentsMap()
    {
        const StyleSheet sheet = sheetFrom("A { k: v } B C { l: v }");
        StylePathPool pool;
        StyleResolver resolver(sheet);
        const ResolvedMap *outer = &resolver.resolve(*pathFrom(pool, "A"));
        QCOMPARE(&resolver.resolve(*pathFrom(pool, "A/X.y::z/C")), outer);
        QVERIFY(&resolver.resolve(*pathFrom(pool, "A/B/C")) != outer);
        // Once resolved, the same path gives the same map.
        QCOMPARE(&resolver.resolve(*pathFrom(pool, "A")), outer);
    }

    void equalResultsShareAMap()
    {
        const StyleSheet sheet = sheetFrom("P { p: v } B { k: v } B::hovered { k: h }");
        StylePathPool pool;
        StyleResolver resolver(sheet);
        const ResolvedMap *button = &resolver.resolve(*pathFrom(pool, "P/B"));
        QCOMPARE(&resolver.resolve(*pathFrom(pool, "P/B.a1::focus")), button);
        QCOMPARE(&resolver.resolve(*pathFrom(pool, "P/X/B")), button);
        QVERIFY(&resolver.resolve(*pathFrom(pool, "P/B::hovered")) != button);
        QVERIFY(&resolver.resolve(*pathFrom(pool, "B")) != button);

        for (int i = 0; i < 10'000; ++i)
            resolver.resolve(*pathFrom(pool, QStringLiteral("P.row%1/B.item%1").arg(i)));
        QVERIFY(resolver.pathCount() > 20'000);
        QCOMPARE(resolver.mapCount(), std::size_t(4)); // P, P/B, P/B::hovered and B
    }

    void resolvedMapFinds()
    {
        const StyleSheet sheet =
            sheetFrom("A { background: a; foreground-item: a; k: a } B { background: b; a: b; z: b }");
        StylePathPool pool;
        StyleResolver resolver(sheet);
        const ResolvedMap &map = resolver.resolve(*pathFrom(pool, "A/B"));
        const std::vector<std::pair<const char *, const char *>> expected = {
            {"background", "b"}, {"foreground-item", "a"}, {"k", "a"}, {"a", "b"}, {"z", "b"}};
        for (const auto &[name, value] : expected) {
            const PropertySpec *declaration = map.find(QString::fromLatin1(name));
            QVERIFY2(declaration, name);
            QCOMPARE(boost::get<std::string>(declaration->values.front()), std::string(value));
            QCOMPARE(map.find(std::string_view(name)), declaration);
        }
        for (const char *name : {"", "b", "backgroun", "background-", "Background", "zz", "\xc3\xbc"}) {
            QVERIFY2(!map.find(QString::fromUtf8(name)), name);
            QVERIFY2(!map.find(std::string_view(name)), name);
        }
        QVERIFY(!map.isEmpty());
        QVERIFY(ResolvedMap().isEmpty());
        QVERIFY(!ResolvedMap().find(u"k"));
    }

    void emptySheet()
    {
        const StyleSheet sheet;
        StylePathPool pool;
        StyleResolver resolver(sheet);
        const StylePathRef path = pathFrom(pool, "A/B.x::s");
        QVERIFY(resolver.resolve(*path).isEmpty());
        QVERIFY(resolver.resolve(*path).all().empty());
        QVERIFY(resolver.matches(*path).empty());
        QCOMPARE(styleInfoText(sheet, *path), QString());
    }

    void resolverKeepsItsPaths()
    {
        const StyleSheet sheet = sheetFrom("A { k: a } B { k: b }");
        StylePathPool pool;
        {
            StyleResolver resolver(sheet);
            QCOMPARE(dumpOf(resolver.resolve(*pathFrom(pool, "A")).all()), "k=a");
            pool.collect(); // must not hand the address to the next path
            QCOMPARE(dumpOf(resolver.resolve(*pathFrom(pool, "B")).all()), "k=b");
            QCOMPARE(pool.pathCount(), std::size_t(2));
        }
        pool.collect();
        QCOMPARE(pool.pathCount(), std::size_t(0));
    }

    void deepPath()
    {
        const StyleSheet sheet = sheetFrom("A { k: a } A A A A B { l: b } Z B { m: z }");
        StylePathPool pool;
        StyleResolver resolver(sheet);
        StylePathRef path;
        for (int i = 0; i < 5'000; ++i)
            path = pool.child(path, u"A", QString::number(i), u"");
        path = pool.child(path, u"B", u"", u"");
        QCOMPARE(dumpOf(resolver.resolve(*path).all()), "k=a l=b");
        QVERIFY(resolver.lookUpCount() < 5'001 * 8);
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

    void costOfManyNamesAndWords()
    {
        const auto cost = [](int count) {
            // Distinct ones in an order that is not the alphabet's.
            QString declarations;
            QString selectors;
            QString name;
            for (int i = count; i > 0; --i) {
                declarations += QStringLiteral("k%1: v; ").arg(i);
                selectors += QStringLiteral(".c%1,").arg(i);
                name += QStringLiteral("c%1 ").arg(i);
            }
            QElapsedTimer timer;
            timer.start();
            const StyleSheet names = sheetFrom("A { " + declarations + "}");
            StylePathPool pool;
            const auto found = StyleResolver(names).resolve(*pathFrom(pool, "A")).all().size();
            const StyleSheet words = sheetFrom(selectors + "A { k: v }");
            const auto one = StyleResolver(words).matches(*pathFrom(pool, "A." + name)).size();
            const auto two = StyleResolver(words).matches(*pathFrom(pool, "A." + name + "/A." + name)).size();
            return found == std::size_t(count) && one == found + 1 && two == one ? double(timer.nsecsElapsed()) : 0.0;
        };
        // Four times as many take four times as long, not sixteen times; other programs may disturb one comparison.
        double growth = std::numeric_limits<double>::infinity();
        for (int i = 0; i < 5 && !(growth < 9.0); ++i)
            growth = std::min(growth, cost(80'000) / cost(20'000));
        QVERIFY2(growth > 0.0 && growth < 9.0, qPrintable(QString::number(growth)));
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

    void styleInfo()
    {
        const StyleSheet base = sheetFrom("RButton { background: #111 }\nRButton.red { background: #222; line: true }");
        const StyleSheet user = sheetFrom("RPanel RButton::hovered { background: white }");
        const StyleSheet sheet = StyleSheet::merged(base, user);
        StylePathPool pool;
        QCOMPARE(styleInfoText(sheet, *pathFrom(pool, "RPanel/RButton.red big::hovered")),
                 "Style info for path RPanel/RButton.{red,big}::hovered\n"
                 "// specificity: [1,0,2]\n"
                 "RPanel RButton::hovered {\n"
                 "    background: white; // user stylesheet at line 1 column 27\n"
                 "}\n"
                 "// specificity: [0,1,1]\n"
                 "RButton.red {\n"
                 "    background: #222; // default stylesheet at line 2 column 15\n"
                 "    line: true; // default stylesheet at line 2 column 33\n"
                 "}\n"
                 "// specificity: [0,0,1]\n"
                 "RButton {\n"
                 "    background: #111; // default stylesheet at line 1 column 11\n"
                 "}\n");
        QCOMPARE(styleInfoText(sheet, *pathFrom(pool, "RLabel")), "Style info for path RLabel\n");
    }
};

template struct TestClass<tst_StyleResolver>;
#include "tst_StyleResolver.moc"
