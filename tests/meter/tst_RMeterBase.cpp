#include "support/Rows.h"
#include "support/SignalLog.h"
#include "support/TestProgram.h"

#include "meter/RMeterBase.h"

#include <limits>

using namespace tamble::client;
using namespace Qt::StringLiterals;

namespace {

const QStringList displaySignals{u"currentValueChanged"_s,
                                 u"currentValueFactorChanged"_s,
                                 u"currentValueRedFactorChanged"_s,
                                 u"currentValueYellowFactorChanged"_s,
                                 u"currentValueFactorMaxChanged"_s,
                                 u"currentValueRedFactorMaxChanged"_s,
                                 u"currentValueYellowFactorMaxChanged"_s};

void tick(int times = 1)
{
    for (int i = 0; i < times; ++i)
        QMetaObject::invokeMethod(&RMeterBase::sharedTimer(), "timeout");
}

/// A meter of which the test decides when its component is complete.
class DeclaredMeter : public RMeterBase
{
public:
    using RMeterBase::classBegin;
    using RMeterBase::componentComplete;
};

} // namespace

class tst_RMeterBase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void risesAtOnceAndFallsByTicks()
    {
        RMeterBase meter;
        meter.setValue(0.0);
        QCOMPARE(meter.getCurrentValue(), 0.0);
        meter.setValue(-80.0);
        QCOMPARE(meter.getCurrentValue(), 0.0);
        tick();
        QCOMPARE(meter.getCurrentValue(), -3.0);
        tick(25);
        QCOMPARE(meter.getCurrentValue(), -78.0);
        tick();
        QCOMPARE(meter.getCurrentValue(), -80.0);
    }

    void fallStopsAtTheValue()
    {
        RMeterBase meter;
        meter.setValue(0.0);
        meter.setProperty("currentValueDecreasePerSecond", 20.0);
        meter.setValue(-1.5);
        tick();
        QCOMPARE(meter.getCurrentValue(), -1.0);
        tick();
        QCOMPARE(meter.getCurrentValue(), -1.5);
    }

    void incompleteMeterIgnoresTicks()
    {
        DeclaredMeter meter;
        meter.classBegin();
        meter.setValue(0.0);
        meter.setValue(-80.0);
        tick(5);
        QCOMPARE(meter.getCurrentValue(), 0.0);
        meter.componentComplete();
        tick();
        QCOMPARE(meter.getCurrentValue(), -3.0);
    }

    void settledMeterIsSilent()
    {
        RMeterBase meter;
        SignalLog log(&meter);
        tick(3);
        QCOMPARE(log.take(), QStringList());
        meter.setValue(-7.3);
        log.take();
        tick(3);
        QCOMPARE(log.take(), QStringList());
    }

    void levelOutsideTheRangeSignalsEachTick_data()
    {
        const auto row = rowsOf([](double value, double displayed) {
            RMeterBase meter;
            meter.setValue(value);
            SignalLog log(&meter);
            for (int i = 0; i < 2; ++i) {
                tick();
                QCOMPARE(meter.getCurrentValue(), displayed);
                QCOMPARE(log.take(), displaySignals);
            }
        });
        row("above", 20.0, 6.0);
        row("below", -100.0, -80.0);
        row("NaN", std::numeric_limits<double>::quiet_NaN(), -80.0);
    }
    void levelOutsideTheRangeSignalsEachTick() { checkRow(); }

    void notANumberShowsTheMinimum()
    {
        RMeterBase meter;
        meter.setValueMin(-60.0);
        meter.setValue(0.0);
        SignalLog log(&meter);
        meter.setCurrentValue(std::numeric_limits<double>::quiet_NaN());
        QCOMPARE(meter.getCurrentValue(), -60.0);
        QCOMPARE(log.take(), displaySignals);
    }

    void signalOrder()
    {
        RMeterBase meter;
        SignalLog log(&meter);
        meter.setValue(-20.0);
        QCOMPARE(log.take(), QStringList{u"valueChanged"_s} + displaySignals);
        meter.setValue(-30.0);
        QCOMPARE(log.take(), QStringList{u"valueChanged"_s});
        meter.setValue(-30.0);
        QCOMPARE(log.take(), QStringList());
    }

    void thresholdDropsThePeak_data()
    {
        const Rows<QByteArray, QVariant> row;
        row("split", "split", QVariant(true));
        for (const char *name :
             {"valueMin", "valueMinYellow", "valueMinRed", "valueMax", "valueMaxYellow", "valueMaxRed", "valueSplit"})
            row(name, QByteArray(name), QVariant(-50.0));
    }

    void thresholdDropsThePeak()
    {
        const auto &[property, changed] = Rows<QByteArray, QVariant>::current();
        RMeterBase meter;
        meter.setValue(0.0);
        meter.setValue(-55.0);

        const double bottom = property == "valueMin" ? -50.0 : -80.0;
        const double displayed = std::max(bottom, -55.0);
        SignalLog log(&meter);
        meter.setProperty(property, changed);
        // The drop to the bottom, then the rise to the value where that is higher.
        const QStringList own{QString::fromLatin1(property + "Changed")};
        QCOMPARE(log.take(), displayed > bottom ? own + displaySignals + displaySignals : own + displaySignals);
        QCOMPARE(meter.getCurrentValue(), displayed);
        meter.setProperty(property, changed);
        QCOMPARE(log.take(), QStringList());
    }

    void factors()
    {
        RMeterBase meter;
        for (const auto &[name, value] : {std::pair("valueMaxYellow", 1.0), {"valueMaxRed", 3.0}, {"valueSplit", 0.0}})
            QCOMPARE(meter.property(name).toDouble(), value);
        meter.setValue(0.0);
        QCOMPARE(meter.getCurrentValueFactor(), 68.0 / 86.0);
        QCOMPARE(meter.getCurrentValueYellowFactor(), 77.0 / 86.0);
        QCOMPARE(meter.getCurrentValueRedFactor(), 80.0 / 86.0);

        meter.setSplit(true);
        meter.setValueMin(-20.0);
        meter.setValueMax(20.0);
        meter.setValueMinYellow(-5.0);
        meter.setValueMinRed(-10.0);
        meter.setValueMaxYellow(5.0);
        meter.setValueMaxRed(10.0);
        meter.setValue(8.0);
        QCOMPARE(meter.getCurrentValueFactorMax(), 0.25);
        QCOMPARE(meter.getCurrentValueYellowFactorMax(), 0.4);
        QCOMPARE(meter.getCurrentValueRedFactorMax(), 0.4);
        QCOMPARE(meter.getCurrentValueFactor(), -0.4);

        meter.setValue(-15.0);
        meter.setCurrentValue(-15.0);
        QCOMPARE(meter.getCurrentValueFactor(), 0.25);
        QCOMPARE(meter.getCurrentValueYellowFactor(), 0.5);
        QCOMPARE(meter.getCurrentValueRedFactor(), 0.75);
        QCOMPARE(meter.getCurrentValueRedFactorMax(), -0.75);
    }

    void invokables()
    {
        RMeterBase meter;
        meter.setValue(-10.0);
        meter.reset();
        QCOMPARE(meter.getCurrentValue(), -80.0);
        meter.refresh();
        QCOMPARE(meter.getCurrentValue(), -10.0);
        meter.setCurrentValue(-5.0);
        SignalLog log(&meter);
        meter.refresh();
        meter.redraw();
        QCOMPARE(meter.getCurrentValue(), -5.0);
        QCOMPARE(log.take(), QStringList());
    }

    void newMeterRestartsTheSharedTimer()
    {
        QTimer &timer = RMeterBase::sharedTimer();
        QCOMPARE(timer.interval(), 50);
        QVERIFY(!timer.isSingleShot());
        while (timer.remainingTime() > 45) { // a few milliseconds into the cycle
        }
        const int before = timer.remainingTime();
        {
            const RMeterBase meter;
            QVERIFY(timer.remainingTime() > before);
        }
        tick(); // the connection has ended with the meter
        QVERIFY(timer.isActive());
    }
};

template struct TestClass<tst_RMeterBase>;
#include "tst_RMeterBase.moc"
