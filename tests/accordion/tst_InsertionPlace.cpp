#include "accordion/InsertionPlace.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <vector>

using namespace tamble::client;

/// Where a dragged section is put in: two sections that touch, a caption of 24, an open section; the second of all four
/// sections is hidden.
class tst_InsertionPlace : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void places_data()
    {
        const auto row = rowsOf([](double y, int gap, double edge) {
            const std::vector<RowSpan> rows{{0, 0.0, 32.0}, {2, 56.0, 88.0}, {3, 89.0, 289.0}};
            QCOMPARE(insertionPlace(rows, y), (InsertionPlace{gap, edge}));
        });
        row("above all", -1e9, 0, 0.0);
        row("upper half", 15.0, 0, 0.0);
        row("lower half", 17.0, 1, 32.0);
        row("above the caption", 40.0, 1, 32.0);
        row("below the caption", 50.0, 2, 56.0);
        row("between two that touch", 88.4, 3, 88.0);
        row("in an open one", 150.0, 3, 89.0);
        row("below all", 1e9, 4, 289.0);
    }
    void places() { checkRow(); }

    void nothingToPutItInto() { QVERIFY(!insertionPlace({}, 0.0)); }

    void moves_data()
    {
        const auto row = rowsOf([](int from, int gap, int to) { QCOMPARE(movedTo(from, gap), to); });
        row("down", 1, 4, 3);
        row("up", 3, 1, 1);
        row("before itself", 2, 2, 2);
        row("behind itself", 2, 3, 2);
    }
    void moves() { checkRow(); }
};

template struct TestClass<tst_InsertionPlace>;

#include "tst_InsertionPlace.moc"
