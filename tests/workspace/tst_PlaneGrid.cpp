#include "workspace/PlaneGrid.h"

#include "support/Rows.h"
#include "support/TestProgram.h"

#include <cmath>
#include <limits>

using namespace tamble::client;

class tst_PlaneGrid : public QObject
{
    Q_OBJECT

    static constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

private Q_SLOTS:
    void linesAreEightPixelsApart_data()
    {
        const auto row = rowsOf([](double gridSize, double pixelsPerUnit, double shown) {
            QCOMPARE(shownGridSize(gridSize, pixelsPerUnit), shown);
        });
        row("just enough", 8.0, 1.0, 8.0);
        row("more than enough", 8.0, 4.0, 8.0);
        row("half of it", 8.0, 0.5, 16.0);
        row("a little less", 8.0, 0.99, 16.0);
        row("a fifth", 8.0, 0.2, 64.0);
        row("of an odd size", 3.0, 1.0, 12.0);
        row("far off", 1.0, 1e-9, std::ldexp(1.0, 33));
        row("no grid", 0.0, 1.0, 0.0);
        row("negative", -8.0, 1.0, 0.0);
        row("not a number", notANumber, 1.0, 0.0);
        row("endless zoom", 8.0, std::numeric_limits<double>::infinity(), 0.0);
    }
    void linesAreEightPixelsApart() { checkRow(); }

    void linesAreWholeSteps_data()
    {
        const auto row = rowsOf([](double begin, double end, double step, const QList<double> &places) {
            QCOMPARE(gridPlaces(begin, end, step), places);
        });
        row("both ends", 0.0, 32.0, 8.0, {0.0, 0.25, 0.5, 0.75, 1.0});
        row("between", -6.0, 10.0, 8.0, {0.375, 0.875});
        row("none between", 1.0, 7.0, 8.0, {});
        row("nothing seen", 8.0, 8.0, 0.0, {});
        row("no step", 0.0, 32.0, 0.0, {});
        row("not a number", notANumber, 32.0, 8.0, {});
        row("too many", 0.0, 1e9, 1.0, {});
    }
    void linesAreWholeSteps() { checkRow(); }
};

template struct TestClass<tst_PlaneGrid>;
#include "tst_PlaneGrid.moc"
