#include "lists/RowByKey.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

using namespace tamble::client;

/// Where keys lead in a list of ten rows of which three fill a page.
class tst_RowByKey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keys_data()
    {
        const auto row = rowsOf([](Qt::Key key, bool isRepeated, const ListPosition &list, std::optional<int> target) {
            QCOMPARE(rowByKey(key, isRepeated, list), target);
        });
        const auto at = [](int current, int former = -1) {
            ListPosition list;
            list.count = 10;
            list.current = current;
            list.former = former;
            list.rowsPerPage = 3;
            return list;
        };
        const auto with = [](ListPosition list, bool ListPosition::*flag, bool value) {
            list.*flag = value;
            return list;
        };
        row("down", Qt::Key_Down, true, at(4), 5);
        row("page up", Qt::Key_PageUp, false, at(4), 1);
        row("page beyond the end", Qt::Key_PageDown, false, at(8), 9);
        row("end", Qt::Key_End, false, at(-1), 9);
        row("across", Qt::Key_Right, false, at(4), std::nullopt);
        row("letter", Qt::Key_A, false, at(4), std::nullopt);
        row("no rows", Qt::Key_Home, false, {}, std::nullopt);

        const auto sideways = with(at(4), &ListPosition::isVertical, false);
        row("sideways", Qt::Key_Right, false, sideways, 5);
        row("from the right", Qt::Key_Right, false, with(sideways, &ListPosition::isReversed, true), 3);
        row("upwards, by a page", Qt::Key_PageDown, false, with(at(4), &ListPosition::isReversed, true), 1);

        row("no current row, down", Qt::Key_Down, false, at(-1), 0);
        row("no current row, up", Qt::Key_Up, false, at(-1), 9);
        row("no current row, by a page", Qt::Key_PageUp, false, at(-1), 7);
        row("one that has left, down", Qt::Key_Down, false, at(-1, 4), 4);
        row("one that has left, up", Qt::Key_Up, false, at(-1, 4), 3);
        row("the first has left, up", Qt::Key_Up, false, at(-1, 0), 0);

        row("wraps", Qt::Key_Up, false, with(at(0), &ListPosition::wraps, true), 9);
        row("held, it stops", Qt::Key_Down, true, with(at(9), &ListPosition::wraps, true), 9);
        row("pages stop", Qt::Key_PageDown, false, with(at(9), &ListPosition::wraps, true), 9);
    }
    void keys() { checkRow(); }
};

template struct TestClass<tst_RowByKey>;

#include "tst_RowByKey.moc"
