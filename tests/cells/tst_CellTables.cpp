#include "cells/CellMoves.h"
#include "cells/CellPlan.h"
#include "cells/CellTracks.h"
#include "cells/TabSeparated.h"
#include "support/Numbers.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;
using namespace tamble::client;

namespace {

/// A table drawn with letters, one cell each; small ones cannot be reached, a dot is no cell.
CellPlan drawn(const QString &picture)
{
    QMap<QChar, CellArea> areas;
    const QStringList lines = picture.split(u' ');
    for (int row = 0; row < int(lines.size()); ++row) {
        for (int column = 0; column < int(lines[row].size()); ++column) {
            const QChar name = lines[row][column];
            if (name != u'.')
                areas[name] = areas.value(name).united({row, column, 1, 1});
        }
    }
    std::vector<CellPlan::Cell> cells;
    for (auto area = areas.begin(); area != areas.end(); ++area)
        cells.push_back({area.value(), area.key().isUpper()});
    return CellPlan(cells);
}

} // namespace

class tst_CellTables : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void tracks_data()
    {
        const auto row = rowsOf([](const QList<qreal> &sizes, int track, double start, int count, double extent) {
            const CellTracks tracks(100.0, sizes, 2.0);
            QCOMPARE(tracks.start(track), start);
            QCOMPARE(tracks.extent(track, count), extent);
        });
        const QList<qreal> own{30.0, 0.0, 50.0};
        row("all alike", {}, 3, 306.0, 2, 202.0);
        row("size of its own", own, 0, 0.0, 1, 30.0);
        row("behind one", own, 1, 32.0, 1, 100.0);
        row("behind all", own, 4, 288.0, 1, 100.0);
        row("across both kinds", own, 2, 134.0, 2, 152.0);
        row("negative", own, -3, 0.0, -1, 30.0);
        row("sizes that are none", {notANumber, infinity, -5.0}, 2, 204.0, 1, 100.0);
        row("too many", {}, 0, 0.0, std::numeric_limits<int>::max(), 102.0 * std::numeric_limits<int>::max() - 2.0);
    }
    void tracks() { checkRow(); }

    void moves_data()
    {
        const auto row = rowsOf([](const QString &picture, CellPlace from, CellMove move, CellPlace to) {
            const CellPlace found = moved(drawn(picture), from, move);
            QCOMPARE(found.row, to.row);
            QCOMPARE(found.column, to.column);
        });
        const QString spans = u"ABC ADD AEF GEH"_s;
        row("right", spans, {0, 0}, CellMove::Right, {0, 1});
        row("right from below the top of a span", spans, {2, 0}, CellMove::Right, {2, 1});
        row("right over a span", spans, {1, 0}, CellMove::Right, {1, 1});
        row("right ends", spans, {1, 1}, CellMove::Right, {1, 1});
        row("left from within a span", spans, {1, 2}, CellMove::Left, {1, 0});
        row("down out of a span", spans, {0, 0}, CellMove::Down, {3, 0});
        row("down keeps the column", spans, {1, 2}, CellMove::Down, {2, 2});
        row("up enters a span at its top", spans, {3, 1}, CellMove::Up, {1, 1});
        row("left edge", spans, {3, 2}, CellMove::LeftEdge, {3, 0});
        row("bottom edge", spans, {0, 1}, CellMove::BottomEdge, {2, 1});
        row("top edge", spans, {3, 2}, CellMove::TopEdge, {0, 2});
        row("last cell", spans, {0, 0}, CellMove::LastCell, {3, 2});
        row("first cell", spans, {3, 2}, CellMove::FirstCell, {0, 0});
        const QString header = u"aabc dA.B eC.D"_s;
        row("from none", header, {}, CellMove::Up, {1, 1});
        row("over places without a cell", header, {1, 1}, CellMove::Right, {1, 3});
        row("not into a header", header, {1, 1}, CellMove::Up, {1, 1});
        row("from a place without a cell", header, {1, 2}, CellMove::Left, {1, 1});
        row("from outside", header, {1, 99}, CellMove::LeftEdge, {1, 1});
        row("nothing to reach", u"ab"_s, {}, CellMove::Right, {});
    }
    void moves() { checkRow(); }

    void areas()
    {
        const CellPlan plan = drawn(u"ABC ADD EEF"_s);
        QCOMPARE(plan.rowCount(), 3);
        QVERIFY((plan.wholeCells({0, 1, 2, 1}) == CellArea{0, 1, 2, 2}));
        QVERIFY((plan.wholeCells({0, 0, 1, 2}) == CellArea{0, 0, 2, 3}));
        QVERIFY((plan.wholeCells({2, 2, 1, 1}) == CellArea{2, 2, 1, 1}));
        QVERIFY(!plan.overlap());

        const CellArea first = CellArea::ofCell(-2, 4, 3, 0);
        QVERIFY((first == CellArea{0, 4, 3, 1}));
        const CellPlan crossing({{first}, {CellArea::ofCell(2, 1, 1, 9)}});
        QVERIFY((crossing.overlap() == CellPlace{2, 4}));
        QCOMPARE(crossing.cellAt({2, 4}), 1);
        const CellArea huge = CellArea::ofCell(1'000'000'000, 0, 1'000'000'000, 2'000'000'000);
        QCOMPARE(huge.endRow(), CellArea::limit);
        QCOMPARE(huge.endColumn(), CellArea::limit);
    }

    void tabSeparated_data()
    {
        const auto row = rowsOf([](const QString &text, const QList<QStringList> &rows, const QString &written) {
            QCOMPARE(fromTabSeparated(text), rows);
            QCOMPARE(toTabSeparated(rows), written);
        });
        const auto sameText = [row](const char *rule, const QString &text, const QList<QStringList> &rows) {
            row(rule, text, rows, text);
        };
        sameText("rows", u"a\tb\nc\td"_s, {{u"a"_s, u"b"_s}, {u"c"_s, u"d"_s}});
        sameText("empty ones", u"\t\n\na\t"_s, {{QString(), QString()}, {QString()}, {u"a"_s, QString()}});
        sameText("in marks", u"\"a\tb\"\t\"c\nd\"\t\"\"\"\""_s, {{u"a\tb"_s, u"c\nd"_s, u"\""_s}});
        row("breaks of all systems", u"a\r\nb\rc\n"_s, {{u"a"_s}, {u"b"_s}, {u"c"_s}}, u"a\nb\nc"_s);
        row("open mark", u"\"a\tb"_s, {{u"\"a"_s, u"b"_s}}, u"\"\"\"a\"\tb"_s);
        row("mark within", u"5\" cone"_s, {{u"5\" cone"_s}}, u"\"5\"\" cone\""_s);
        row("text behind a mark", u"\"a\"b"_s, {{u"\"a\"b"_s}}, u"\"\"\"a\"\"b\""_s);
        row("nothing", u""_s, {}, u""_s);
    }
    void tabSeparated() { checkRow(); }
};

template struct TestClass<tst_CellTables>;

#include "tst_CellTables.moc"
