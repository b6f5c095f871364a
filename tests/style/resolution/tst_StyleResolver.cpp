#include "style/StyleTestPaths.h"
#include "style/resolution/StyleInfoText.h"
#include "style/resolution/StyleResolver.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

using namespace tamble::client;

namespace {

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

} // namespace

/// What a sheet gives to a style path: the order of matches, merging, inheritance and the caches.
class tst_StyleResolver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void winner_data()
    {
        const auto row = rowsOf([](const QString &sheet, const QString &path, const QString &expected) {
            QCOMPARE(resolved(sheetFrom(sheet), path), expected);
        });
        row("a state beats many classes", "A::s { k: state }\nA.x.y.z { k: classes }", "A.x y z::s", "k=state");
        row("a class beats many types", ".x { k: class }\nA B C { k: types }", "A/B/C.x", "k=class");
        row("later column wins", "A.x { k: 1 } A.y { k: 2 }", "A.y x", "k=2");
        row("later line wins over the larger column", "          A.x { k: 1 }\nA.y { k: 2 }", "A.x y", "k=2");
        row("more specific wins though earlier", "A.x { k: 1 }\nA { k: 2 }", "A.x", "k=1");
        row("later rule of the same selector", "A { k: 1; l: 1 }\nA { k: 2 }", "A", "k=2 l=1");
        row("later declaration of a block", "A { k: 1; k: 2 }", "A", "k=2");
        row("names are merged in order", "A { m: 1; k: 1 }\nA.x { l: 2 }", "A.x", "k=1 l=2 m=1");
        row("each name on its own", "A.x { k: 1; l: 1 }\nA.y { l: 2; m: 2 }", "A.x y", "k=1 l=2 m=2");

        // The second of two equally specific matches is held against the type's declaration, which stands later.
        const QString twoClasses = ".x { l: x }\n.y { k: y }\nA { k: type }";
        row("second of two classes against a later type", twoClasses, "A.x y", "k=type l=x");
        row("first match of its specificity against a later type", twoClasses, "A.y", "k=y");
        row("second of two classes, which stands later", "A { k: type }\n.x { l: x }\n.y { k: y }", "A.x y", "k=y l=x");

        // The order of the words does not matter, even when two selectors of one rule share their first declaration.
        const QString shared = "A.x, A.y { l: both }\nA.x { k: x }\nA { k: type }";
        for (const char *path : {"A.y x", "A.x y"})
            row(path, shared, path, "k=type l=both");
        const QString threeClasses = "A.z { k: z; l: z }\nA.y { k: y }\nA { l: type; m: type }\nA.x { m: x }";
        for (const char *path : {"A.x y z", "A.x z y", "A.y x z", "A.y z x", "A.z x y", "A.z y x", "A.z z y x x"})
            row(path, threeClasses, path, "k=y l=z m=x");

        const QString nested = "A { k: a; l: a } A.x { k: x } B { l: b; a: b; z: b } C { k: c }";
        row("nearer definition wins", nested, "A/B", "a=b k=a l=b z=b");
        row("through elements without rules", nested, "A/X/B/X/C", "a=b k=c l=b z=b");
        row("nearer though less specific", nested, "A.x/B", "a=b k=x l=b z=b");
        row("whatever the selector looks at", nested, "B/A", "a=b k=a l=a z=b");
    }
    void winner() { checkRow(); }

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
