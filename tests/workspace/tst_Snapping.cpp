#include "workspace/Snapping.h"

#include "support/Rows.h"
#include "support/TestProgram.h"

#include <array>

using namespace tamble::client;

/// A set of 40 by 20 units, on a plane of 1000 by 500 with two items at rest.
class tst_Snapping : public QObject
{
    Q_OBJECT

    static constexpr QRectF set{100, 100, 40, 20};
    static constexpr std::array rests = {QRectF(300, 300, 100, 60), QRectF(314, 0, 72, 10)};
    using Guides = std::vector<Guide>;

    static SnapRules rules() { return {{0, 0, 1000, 500}, 6.0, 8.0, Qt::Horizontal | Qt::Vertical}; }

private Q_SLOTS:
    void moves_data()
    {
        const auto row = rowsOf([](const QPointF &offset, const QPointF &moved, const Guides &guides) {
            const SnappedMove move = snappedMove(set, set.topLeft(), offset, SnapLines(rests), rules());
            QCOMPARE(set.topLeft() + move.offset, moved);
            QCOMPARE(move.guides, guides);
        });
        row("to the grid", {51, 62}, {152, 160}, {});
        row("left to left", {197, 62}, {300, 160}, {{Qt::Vertical, 300}});
        row("as far as it reaches", {194, 62}, {300, 160}, {{Qt::Vertical, 300}});
        row("not further", {193.5, 62}, {296, 160}, {});
        row("left to right does not count", {299, 62}, {400, 160}, {});
        row("right to right", {259, 62}, {360, 160}, {{Qt::Vertical, 400}});
        row("centre to centre", {233, 62}, {330, 160}, {{Qt::Vertical, 350}});
        row("the nearer of two", {209, 62}, {314, 160}, {{Qt::Vertical, 314}});
        row("top and left", {203, 195}, {300, 300}, {{Qt::Vertical, 300}, {Qt::Horizontal, 300}});
        row("bottom", {51, 243}, {152, 340}, {{Qt::Horizontal, 360}});
        row("into the plane", {-900, 900}, {0, 480}, {});
    }
    void moves() { checkRow(); }

    // 7 units from 300 as well as from 314.
    void ties()
    {
        SnapRules wide = rules();
        wide.distance = 8.0;
        const SnappedMove move = snappedMove(set, set.topLeft(), {207, 62}, SnapLines(rests), wide);
        QCOMPARE(move.offset.x(), 200.0);
        QCOMPARE(move.guides, Guides({{Qt::Vertical, 300}}));
    }

    void otherRules_data()
    {
        const auto row = rowsOf([](const SnapRules &rules, const QPointF &offset, const QPointF &moved) {
            const SnappedMove move = snappedMove(set, {112, 103}, offset, SnapLines(rests), rules);
            QCOMPARE(set.topLeft() + move.offset, moved);
        });
        SnapRules rule = rules();
        row("the grid counts for the leader", rule, {51, 60}, {148, 157});
        rule.axes = Qt::Horizontal;
        row("one direction", rule, {51, 0}, {148, 100});
        row("it stays in the plane in both", rule, {51, -900}, {148, 0});
        rule = rules();
        rule.grid = 0.0;
        row("no grid", rule, {51, 62}, {151, 162});
        rule.distance = 0.0;
        row("nothing attracts", rule, {197, 62}, {297, 162});
        rule.plane = {200, 200, 30, 500};
        row("no room", rule, {60, 150}, {200, 250});
    }
    void otherRules() { checkRow(); }
};

template struct TestClass<tst_Snapping>;
#include "tst_Snapping.moc"
