#include "scale/LabelRoom.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

using namespace tamble::client;

/// Which labels of an axis have room.
class tst_LabelRoom : public QObject
{
    Q_OBJECT
    using Starts = QList<std::optional<double>>;

private Q_SLOTS:
    void numberStarts_data()
    {
        const auto row = rowsOf([](const QList<double> &centres, double axisLength, const Starts &expected) {
            QList<LabelSpan> spans;
            for (const double centre : centres)
                spans.append({.centre = centre, .length = 20.0});
            QVERIFY(tamble::client::numberStarts(spans, axisLength, 4.0) == expected);
        });
        const std::optional<double> none;

        // Every number is 20 long, the gap is 4.
        row("all fit, the ends inside", {0, 50, 100}, 100.0, {0.0, 40.0, 80.0});
        row("touching the one before, and the last", {0, 25, 50, 75, 100}, 100.0, {0.0, none, 40.0, none, 80.0});
        row("backwards", {100, 75, 50, 25, 0}, 100.0, {80.0, none, 40.0, none, 0.0});
        row("the gap itself is kept", {10, 34, 70}, 80.0, {0.0, 24.0, 60.0});
        row("room for one", {0, 30}, 30.0, {none, 10.0});
        row("axis shorter than a number", {5}, 10.0, {0.0});
        row("none", {}, 100.0, {});
    }
    void numberStarts() { checkRow(); }
};

template struct TestClass<tst_LabelRoom>;
#include "tst_LabelRoom.moc"
