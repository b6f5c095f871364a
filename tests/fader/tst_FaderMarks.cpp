#include "fader/FaderMarks.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <limits>

using namespace tamble::client;

class tst_FaderMarks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void automatic_data()
    {
        const auto row = rowsOf([](const FaderTravel &travel, double spacing, const QList<double> &levels) {
            QList<double> chosen;
            for (const FaderMark &mark : automaticMarks(travel, spacing))
                chosen.append(mark.level);
            QCOMPARE(chosen, levels);
        });
        const FaderTravel usual;
        // 14 of 232 pixels are 5.43 dB, so 5 and -5 have no room.
        row("usual size", usual, 14.0 / 232.0, {0, -80, 10, -10, -20, -30, -40, -50, -60});
        row("tall", usual, 14.0 / 352.0, {0, -80, 10, 5, -5, -10, -20, -30, -40, -50, -60});
        row("short", usual, 14.0 / 72.0, {0, -80, -20, -40, -60});
        row("no room but for 0 dB", usual, 1.0, {0});
        // The table gives -50…-80 dB the lowest twentieth.
        row("table", {-80.0, 10.0, FaderLaw::Table}, 0.06, {0, -80, 10, 5, -5, -10, -20, -30});
        row("ends off the list", {-66.0, 12.0, FaderLaw::Linear}, 0.1, {0, -66, 12, -10, -20, -30, -40, -50});
        row("reversed", {10.0, -80.0, FaderLaw::Linear}, 0.3, {0, -80, -30});
        row("without 0 dB", {-40.0, -20.0, FaderLaw::Linear}, 0.1, {-40, -20, -30});
        row("empty range", {5.0, 5.0, FaderLaw::Linear}, 0.1, {});
        row("no number", {-80.0, std::numeric_limits<double>::quiet_NaN(), FaderLaw::Linear}, 0.1, {});
    }
    void automatic() { checkRow(); }

    void given_data()
    {
        const auto row =
            rowsOf([](const QList<double> &levels, const QList<double> &ticks, const QList<double> &labels) {
                QList<double> shown;
                QList<double> labelled;
                for (const FaderMark &mark : marksAt({}, levels, 0.06)) {
                    shown.append(mark.level);
                    if (mark.isLabelled)
                        labelled.append(mark.level);
                }
                QCOMPARE(shown, ticks);
                QCOMPARE(labelled, labels);
            });
        row("crowded", {-12, -11, -10, 0}, {0, -12, -11, -10}, {0, -12});
        row("0 dB and the ends go first", {-1, 0, 9, 10}, {0, 10, -1, 9}, {0, 10});
        row("twice the same", {-20, -20}, {-20, -20}, {-20});
        row("outside of the range", {20, -20, -100}, {-20}, {-20});
    }
    void given() { checkRow(); }
};

template struct TestClass<tst_FaderMarks>;
#include "tst_FaderMarks.moc"
