#include "base/StyleTypeName.h"
#include "style/StyleTestPaths.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <vector>

using namespace tamble::client;

/// Style paths, the pool that holds each of them once, and the names of types.
class tst_StylePath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_data()
    {
        const auto row =
            rowsOf([](const QString &typeName, const QString &name, const QString &state, const QString &expected) {
                StylePathPool pool;
                const StylePathRef panel = pool.child({}, u"RPanel", u"", u"");
                QCOMPARE(pool.child({}, typeName, name, state)->text(), expected);
                QCOMPARE(pool.child(panel, typeName, name, state)->text(), "RPanel/" + expected);
            });
        row("one class and one state", "B", "red", "hovered", "B.red::hovered");
        row("two of each", "B", "red big", "hovered pressed", "B.{red,big}::{hovered,pressed}");
        row("empty words are dropped", "B", "  red  big ", " pressed hovered ", "B.{red,big}::{pressed,hovered}");
        row("repeated words are kept", "B", "red red", "", "B.{red,red}");
        row("only blanks separate words", "B", "red\tbig", "", "B.red\tbig");
        row("no type", "", "red", "", ".red");
    }
    void text() { checkRow(); }

    void parts()
    {
        StylePathPool pool;
        const StylePathRef path = pathFrom(pool, "QQuickRootItem/RPanel.wide/RButton.red big::hovered");
        QCOMPARE(path->depth(), 3);
        QCOMPARE(path->typeName(), "RButton");
        QCOMPARE(path->classes(), QStringList({"red", "big"}));
        QCOMPARE(path->states(), QStringList("hovered"));
        QCOMPARE(path->parent()->classes(), QStringList("wide"));
        QCOMPARE(path->outermost().typeName(), "QQuickRootItem");
        QCOMPARE(&path->outermost().outermost(), path->parent()->parent());
        QVERIFY(!path->outermost().parent());
    }

    void equalPathsAreOne_data()
    {
        const auto row = rowsOf([](const QString &a, const QString &b, bool equal) {
            StylePathPool pool;
            const StylePathRef first = pathFrom(pool, a);
            QCOMPARE(pathFrom(pool, b) == first, equal);
            QVERIFY(pathFrom(pool, a) == first);
        });
        row("blanks only", "A/B.x y::z", "A/B.  x y ::z ", true);
        row("order of classes", "A.x y", "A.y x", false);
        row("order of states", "A::x y", "A::y x", false);
        row("repeated class", "A.x", "A.x x", false);
        row("class or state", "A.x", "A::x", false);
        row("words do not run together", "A.xy", "A.x y", false);
        row("other parent", "A/C", "B/C", false);
        row("other class of the parent", "A/C", "A.x/C", false);
        row("other depth", "A", "A/A", false);
        row("case matters", "A.x", "a.x", false);
    }
    void equalPathsAreOne() { checkRow(); }

    void longerListsOfWordsDiffer()
    {
        StylePathPool pool;
        // So many that some share a bucket of the pool's table with one that begins alike.
        for (int count = 300; count > 0; --count)
            pool.child({}, u"A", QStringLiteral("x ").repeated(count), u"");
        QCOMPARE(pool.elementCount(), std::size_t(300));
    }

    void unusedPathsStayUntilCollected()
    {
        StylePathPool pool;
        const StylePathRef button = pathFrom(pool, "A/B");
        for (int i = 0; i < 3; ++i) { // a state that comes and goes
            pool.child(button, u"C", u"", u"hovered");
            QCOMPARE(pool.pathCount(), std::size_t(3));
        }
        pool.collect();
        QCOMPARE(pool.pathCount(), std::size_t(2));
        QCOMPARE(pool.elementCount(), std::size_t(2));
    }

    void unusedPathsGoBeforeTheyDouble()
    {
        StylePathPool pool;
        std::vector<StylePathRef> used;
        for (int i = 0; i < 1'000; ++i)
            used.push_back(pool.child({}, u"A", QString::number(i), u""));
        for (int i = 0; i < 100'000; ++i) {
            const StylePathRef outer = pool.child({}, u"B", QString::number(i), u"");
            QCOMPARE(pool.child(outer, u"C", u"", u"")->parent(), outer.get());
        }
        QVERIFY(pool.pathCount() <= 2'100 && pool.elementCount() <= 2'100);
        QVERIFY(pool.child({}, u"A", u"7", u"") == used[7]);
    }

    void collectKeepsWhatIsUsed()
    {
        StylePathPool pool;
        StylePathRef kept = pathFrom(pool, "A/B.x/C");
        StylePathRef other = pathFrom(pool, "A/B.x/D");
        pathFrom(pool, "A/E/C. ");
        other.reset();
        pool.collect();
        QCOMPARE(pool.pathCount(), std::size_t(3));
        QCOMPARE(kept->text(), "A/B.x/C");
        QVERIFY(pathFrom(pool, "A/B.x/C") == kept);

        kept = kept->parent();
        pool.collect();
        QCOMPARE(pool.pathCount(), std::size_t(2));
        kept.reset();
        pool.collect();
        QCOMPARE(pool.pathCount(), std::size_t(0));
        QCOMPARE(pool.elementCount(), std::size_t(0));
        QCOMPARE(pathFrom(pool, "A/B.x/C")->text(), "A/B.x/C");
    }

    void collectOfADeepPath()
    {
        StylePathPool pool;
        StylePathRef path;
        for (int i = 0; i < 100'000; ++i)
            path = pool.child(path, u"A", u"", u"");
        QCOMPARE(pool.elementCount(), std::size_t(1));
        path.reset();
        pool.collect();
        QCOMPARE(pool.pathCount(), std::size_t(0));
    }

    void typeName_data()
    {
        const auto row = rowsOf([](const QString &expected) {
            QCOMPARE(styleTypeName(QByteArrayView(QTest::currentDataTag())), expected);
        });
        row("RButton_QMLTYPE_42", "RButton");
        row("RButton_QML_7", "RButton");
        row("RButton_QMLTYPE_42_QML_7", "RButton");
        row("R_QML_Button_QMLTYPE_42", "R_QML_Button");
        row("QQuickRootItem", "QQuickRootItem");
        row("RButton_QML", "RButton_QML");
        row("RButton_QMLTYPE", "RButton_QMLTYPE");
        row("_QMLTYPE_", "");
        row("_QML_", "");
        row("A_QML_QMLTYPE_3", "A_QML");
        row("", "");
    }
    void typeName() { checkRow(); }
};

template struct TestClass<tst_StylePath>;
#include "tst_StylePath.moc"
