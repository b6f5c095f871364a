#include "handles/HandleDrag.h"
#include "handles/HandleStack.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

using namespace tamble::client;

/// The way of a dragged handle, and which of several handles is meant.
class tst_HandleDrag : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void way_data()
    {
        // moves of a pointer that takes hold at (100, 100) of a handle at (104, 98), each with its keys: f(ine), a(xis)
        // place: of the handle after the last move
        const auto row = rowsOf(
            [](const HandleGrip &grip, const QList<std::pair<QPointF, QByteArray>> &moves, const QPointF &place) {
                HandleDrag drag;
                drag.begin({100, 100}, {104, 98}, grip, 3.0);
                QVERIFY(!drag.moved({102, 101}, {}));
                QVERIFY(!drag.hasMoved());
                std::optional<QPointF> last;
                for (const auto &[pointer, keys] : moves)
                    last = drag.moved(pointer, {keys.contains('f'), keys.contains('a')});
                QVERIFY(drag.hasMoved());
                QCOMPARE(last, std::optional(place));
            });
        const auto keeps = HandleGrip::KeepsOffset;
        const auto jumps = HandleGrip::JumpsUnder;
        row("keeps its distance", keeps, {{{120, 90}, ""}}, {124, 88});
        row("goes under the pointer", jumps, {{{120, 90}, ""}}, {120, 90});
        row("fine from the start", jumps, {{{120, 90}, "f"}}, {106, 97});
        row("fine on the way", keeps, {{{120, 100}, ""}, {{130, 100}, "f"}}, {125, 98});
        row("and back, without a jump", jumps, {{{120, 100}, ""}, {{130, 100}, "f"}, {{140, 100}, ""}}, {131, 100});
        row("along x", keeps, {{{120, 110}, "a"}}, {124, 98});
        row("along y", jumps, {{{105, 120}, "a"}}, {104, 120});
        row("the larger movement counts", keeps, {{{120, 110}, "a"}, {{105, 130}, "a"}}, {104, 128});
        row("free again", keeps, {{{120, 110}, "a"}, {{121, 111}, ""}}, {125, 109});
        row("fine along x", keeps, {{{120, 110}, "fa"}}, {106, 98});
        row("back within the slack", keeps, {{{110, 100}, ""}, {{101, 100}, ""}}, {105, 98});
    }
    void way() { checkRow(); }

    void meant_data()
    {
        // handles: x of the centre and when touched
        const auto row = rowsOf([](const std::vector<HandleSpot> &spots, int meant, int next) {
            const QPointF point(12, 0);
            QCOMPARE(meantHandle(spots, point), meant);
            QCOMPARE(nextInStack(spots, point, meant), next);
        });
        row("none", {}, -1, -1);
        row("the nearest", {{{0, 0}, 9}, {{17, 0}}}, 1, -1);
        row("of near ones the last", {{{14, 0}}, {{13, 0}}}, 1, 0);
        row("of near ones the one touched last", {{{14, 0}, 5}, {{13, 0}, 3}, {{15, 0}}}, 0, 1);
        row("one behind the others is no part of the stack", {{{10, 4}, 1}, {{10, 0}, 2}, {{10, 9}, 3}}, 1, 0);
    }
    void meant() { checkRow(); }
};

template struct TestClass<tst_HandleDrag>;
#include "tst_HandleDrag.moc"
