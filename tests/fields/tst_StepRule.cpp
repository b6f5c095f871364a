#include "fields/StepRule.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <cmath>
#include <limits>

using namespace tamble::client;

namespace {

constexpr double endless = std::numeric_limits<double>::infinity();
constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

StepRule range(double from, double to, double step = 1.0)
{
    StepRule rule{from, to};
    rule.normal = step;
    rule.fine = step / 10.0;
    rule.page = step * 10.0;
    return rule;
}

} // namespace

class tst_StepRule : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stepped_data()
    {
        const auto row = rowsOf([](const StepRule &rule, double value, StepSize size, int direction, double expected) {
            QCOMPARE(rule.stepped(value, size, direction), expected);
        });
        row("plain", range(0, 100), 5, StepSize::Normal, 1, 6);
        row("fine without remains", range(0, 1, 1), 0.2, StepSize::Fine, 1, 0.3);
        row("page beyond the bound", range(0, 100), 95, StepSize::Page, 1, 100);
        row("at the bound", range(0, 100), 0, StepSize::Normal, -1, 0);
        row("from above", range(0, 100), 1e9, StepSize::Normal, 1, 100);
        row("from below", range(0, 100), -endless, StepSize::Normal, 1, 0);
        row("from nowhere", range(-80, 10), noNumber, StepSize::Normal, -1, -80);
        row("from nowhere without bounds", range(-endless, endless), noNumber, StepSize::Normal, 1, 0);
        row("continuous", range(0, 200, 0), 50, StepSize::Normal, 1, 52);
        row("negative step", range(0, 100, -3), 5, StepSize::Normal, 1, 8);
        row("step that is no number", range(0, 200, noNumber), 50, StepSize::Normal, 1, 52);
        row("wrong way round", range(100, 0), 5, StepSize::Normal, 1, 5);
        StepRule around = range(0, 11);
        around.wraps = true;
        row("around", around, 11, StepSize::Normal, 1, 0);
        row("around, downwards", around, 0, StepSize::Normal, -1, 11);
        row("around stops at the end first", around, 10.5, StepSize::Normal, 1, 11);
    }
    void stepped() { checkRow(); }

    void snapped_data()
    {
        const auto row = rowsOf(
            [](const StepRule &rule, double value, double expected) { QCOMPARE(rule.snapped(value), expected); });
        row("from the lower bound", range(3, 100, 5), 14, 13);
        row("without bounds", range(-endless, endless, 0.5), 1.3, 1.5);
        row("within the bound", range(0, 7, 5), 7, 5);
        row("last step is cut", range(0, 9, 5), 9, 9);
    }
    void snapped() { checkRow(); }

    void shownDecimals_data()
    {
        const auto row = rowsOf([](double step, double fine, int decimals, int expected) {
            StepRule rule = range(0, 1, step);
            rule.fine = fine;
            rule.decimals = decimals;
            QCOMPARE(rule.shownDecimals(), expected);
        });
        row("of the finer step", 1.0, 0.25, -1, 2);
        row("given", 1.0, 0.25, 1, 1);
        row("at most ten", 1.0, 1e-300, 400, 10);
    }
    void shownDecimals() { checkRow(); }
};

template struct TestClass<tst_StepRule>;
#include "tst_StepRule.moc"
