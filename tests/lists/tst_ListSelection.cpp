#include "lists/ListSelection.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtCore/QRandomGenerator>

using namespace tamble::client;

namespace {

using Numbers = QList<int>;

/// A change of a list and, in the two parts in which it counts.
struct Change
{
    std::vector<RowChange> leaving;
    std::vector<RowChange> coming;
};

} // namespace

/// What is selected in a list, and where it goes when the list changes.
class tst_ListSelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sets_data()
    {
        const auto row = rowsOf([](const Numbers &before, RowRange added, RowRange removed, const Numbers &after) {
            RowRanges rows(before);
            rows.add(added);
            rows.remove(removed);
            QCOMPARE(rows.rows(), after);
            QVERIFY(rows == RowRanges(after)); // in one form only
        });
        const RowRange none;
        row("unordered, doubled, below 0", {3, -1, 1, 3, 2}, none, none, {1, 2, 3});
        row("joins", {1, 5}, {2, 4}, none, {1, 2, 3, 4, 5});
        row("swallows", {2, 4, 6}, {1, 8}, none, {1, 2, 3, 4, 5, 6, 7, 8});
        row("before all", {5}, {0, 1}, none, {0, 1, 5});
        row("splits", {1, 2, 3, 4, 5}, none, {3, 3}, {1, 2, 4, 5});
        row("beyond the end", {1, 2}, none, {2, 99}, {1});
        row("backwards", {1, 2}, {9, 5}, {2, 1}, {1, 2});
    }
    void sets() { checkRow(); }

    void changes_data()
    {
        const auto row = rowsOf([](const Numbers &before, const Change &change, const Numbers &after) {
            const RowRanges rows = followed(RowRanges(before), change.leaving, change.coming);
            QCOMPARE(rows.rows(), after);
            QVERIFY(rows == RowRanges(after));
        });
        row("inserted above", {1, 2, 4}, {{}, {{0, 2}}}, {3, 4, 6});
        row("inserted between", {1, 2, 4}, {{}, {{2, 1}}}, {1, 3, 5});
        row("inserted below", {1, 2}, {{}, {{3, 9}}}, {1, 2});
        row("removed", {1, 2, 4}, {{{2, 1}}, {}}, {1, 3});
        row("neighbours after what was between them", {1, 4}, {{{2, 2}}, {}}, {1, 2});
        row("removed one after the other", {0, 3, 5}, {{{0, 1}, {0, 1}}, {}}, {1, 3});
        row("moved down", {1}, {{{1, 1, 0}}, {{4, 1, 0}}}, {4});
        row("moved up, with others", {1, 4, 5}, {{{4, 2, 0}}, {{0, 2, 0}}}, {0, 1, 3});
        row("moved in two pieces", {4, 6}, {{{4, 1, 7, 0}, {5, 1, 7, 1}}, {{0, 2, 7, 0}}}, {0, 1});
        row("moved and removed", {0, 3}, {{{3, 1, 1}, {0, 1}}, {{0, 1, 1}}}, {0});
    }
    void changes() { checkRow(); }

    /// Against a list of flags that is changed in the same way.
    void randomChanges()
    {
        QRandomGenerator random(17);
        std::vector<bool> list(40);
        RowRanges rows;
        for (int step = 0; step < 2000; ++step) {
            const int size = int(list.size());
            const int first = random.bounded(size + 1);
            const int count = random.bounded(6);
            std::vector<RowChange> leaving;
            std::vector<RowChange> coming;
            if (step % 3 == 0 && first + count <= size) { // moved
                const std::vector<bool> moved(list.begin() + first, list.begin() + first + count);
                list.erase(list.begin() + first, list.begin() + first + count);
                const int to = random.bounded(int(list.size()) + 1);
                list.insert(list.begin() + to, moved.begin(), moved.end());
                leaving.push_back({first, count, step});
                coming.push_back({to, count, step});
            } else if (size > 60 && first + count <= size) {
                list.erase(list.begin() + first, list.begin() + first + count);
                leaving.push_back({first, count});
            } else {
                list.insert(list.begin() + first, std::size_t(count), false);
                coming.push_back({first, count});
            }
            rows = followed(std::move(rows), leaving, coming);
            const int flipped = random.bounded(int(list.size()));
            list[std::size_t(flipped)] ? rows.remove({flipped, flipped}) : rows.add({flipped, flipped});
            list[std::size_t(flipped)] = !list[std::size_t(flipped)];

            Numbers expected;
            for (int i = 0; i < int(list.size()); ++i) {
                QCOMPARE(rows.contains(i), bool(list[std::size_t(i)]));
                if (list[std::size_t(i)])
                    expected.append(i);
            }
            QVERIFY(rows == RowRanges(expected));
        }
    }

    void modes_data()
    {
        using Mode = ListSelection::Mode;
        using Steps = std::function<void(ListSelection &)>;
        const auto row = rowsOf([](Mode mode, const Steps &steps, const Numbers &after) {
            ListSelection selection;
            selection.setMode(mode);
            steps(selection);
            QCOMPARE(selection.rows().rows(), after);
        });
        const Steps clicks = [](ListSelection &s) {
            s.select(2);
            s.extendTo(4, -1, false);
        };
        row("none", Mode::None, clicks, {});
        row("single", Mode::Single, clicks, {4});
        row("multiple", Mode::Multiple, clicks, {2, 3, 4});
        row("single, toggled twice", Mode::Single, [](auto &s) { s.toggle(2), s.toggle(2); }, {});
        row("single, one of several", Mode::Single, [](auto &s) { s.setRows(RowRanges(Numbers{3, 5})); }, {3});
        row("the anchor stays", Mode::Multiple,
            [](auto &s) { s.select(5), s.extendTo(8, 0, false), s.extendTo(3, 0, false); }, {3, 4, 5});
        row("begins at the current row", Mode::Multiple, [](auto &s) { s.extendTo(3, 1, false); }, {1, 2, 3});
        row("another range in addition", Mode::Multiple,
            [](auto &s) { s.select(1), s.toggle(5), s.extendTo(6, 0, true); }, {1, 5, 6});
        row("the anchor follows its row", Mode::Multiple,
            [](auto &s) {
                s.select(2);
                s.follow({}, std::vector<RowChange>{{0, 3}});
                s.extendTo(7, 0, false);
            },
            {5, 6, 7});
        row("the anchor has gone", Mode::Multiple,
            [](auto &s) {
                s.select(2);
                s.follow(std::vector<RowChange>{{2, 1}}, {});
                s.extendTo(4, 3, false);
            },
            {3, 4});
        row("fewer allowed", Mode::Multiple, [](auto &s) { s.selectRange(6, 3), s.setMode(Mode::Single); }, {3});
    }
    void modes() { checkRow(); }
};

template struct TestClass<tst_ListSelection>;

#include "tst_ListSelection.moc"
