#include "support/SignalLog.h"
#include "support/TestProgram.h"

#include "plot/LineCalculator.h"
#include "plot/NumberingHelper.h"
#include "plot/RAxis.h"
#include "plot/RAxisItem.h"
#include "plot/RConstantGridLineCalculator.h"
#include "plot/RScaleHelper.h"

#include <QtCore/QPointer>

#include <limits>

using namespace tamble::client;
using namespace Qt::StringLiterals;

namespace {

constexpr int logarithmic = 1;

QStringList texts(const NumberingHelper &numbering)
{
    QStringList texts;
    for (const QVariant &label : numbering.labels())
        texts << label.toMap().value(u"text"_s).toString();
    return texts;
}

} // namespace

class tst_PlotHelpers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void lineCalculator()
    {
        LineCalculator lines;
        SignalLog log(&lines);
        lines.setProperty("values", QVariant::fromValue(QList<double>{0.5, 2.0, 0.0, -1.0}));
        QCOMPARE(lines.positions(), QList<double>({0.5, 0.0}));
        QCOMPARE(log.take().filter(u"positionsChanged"_s).size(), 1);
        lines.setProperty("to", 2.0);
        QCOMPARE(lines.positions(), QList<double>({0.25, 1.0, 0.0}));
        lines.setProperty("scale", logarithmic);
        QCOMPARE(lines.positions(), QList<double>());
        log.take();
        lines.setProperty("to", 3.0);
        QCOMPARE(log.take(), QStringList{u"toChanged"_s});
        lines.setProperty("from", 0.5);
        QCOMPARE(lines.positions().size(), 2);
    }

    void constantGrid()
    {
        RConstantGridLineCalculator grid;
        QCOMPARE(grid.values().size(), 11);
        QCOMPARE(grid.positions().last(), 1.0);
        SignalLog log(&grid);
        grid.setProperty("step", 0.5);
        QCOMPARE(grid.positions(), QList<double>({0.0, 0.5, 1.0}));
        QCOMPARE(log.take().filter(u"positionsChanged"_s).size(), 1);
        grid.setProperty("includeEnds", true);
        QCOMPARE(log.take(), QStringList{u"includeEndsChanged"_s});
    }

    void constantGridReportsOnce()
    {
        RConstantGridLineCalculator grid;
        QTest::ignoreMessage(QtWarningMsg, "RConstantGridLineCalculator::recalculate() step out of range");
        grid.setProperty("step", 0.0);
        QVERIFY(grid.values().isEmpty());
        QVERIFY(grid.positions().isEmpty());
    }

    void componentTakesItsPropertiesTogether()
    {
        // In this order the defaults of the properties still to come would mean 8001 lines.
        RConstantGridLineCalculator grid;
        SignalLog log(&grid);
        grid.classBegin();
        grid.setProperty("from", -400.0);
        grid.setProperty("to", 400.0);
        grid.setProperty("step", 200.0);
        log.take();
        grid.componentComplete();
        QCOMPARE(grid.values(), QList<double>({-400, -200, 0, 200, 400}));
        QCOMPARE(log.take(), QStringList({u"valuesChanged"_s, u"positionsChanged"_s}));
    }

    void numbering()
    {
        NumberingHelper numbering;
        numbering.setProperty("step", 0.25);
        QCOMPARE(texts(numbering), QStringList({u"0.00"_s, u"0.25"_s, u"0.50"_s, u"0.75"_s, u"1.00"_s}));
        const QVariantMap second = numbering.labels()[1].toMap();
        QCOMPARE(second.value(u"value"_s).toDouble(), 0.25);
        QCOMPARE(second.value(u"position"_s).toDouble(), 0.25);

        numbering.setProperty("decimals", 1);
        numbering.setProperty("maximumCount", 3);
        QCOMPARE(texts(numbering), QStringList({u"0.0"_s, u"0.5"_s, u"1.0"_s}));
        SignalLog log(&numbering);
        numbering.setProperty("maximumCount", 4);
        QCOMPARE(log.take(), QStringList{u"maximumCountChanged"_s});
    }

    void numberingUnit()
    {
        NumberingHelper numbering;
        numbering.classBegin();
        numbering.setProperty("from", 500.0);
        numbering.setProperty("to", 2000.0);
        numbering.setProperty("scale", logarithmic);
        numbering.setProperty("unit", u"Hz"_s);
        numbering.componentComplete();
        QCOMPARE(texts(numbering),
                 QStringList({u"500"_s, u"600"_s, u"700"_s, u"800"_s, u"900"_s, u"1k"_s, u"2k Hz"_s}));
    }

    void scaleHelper()
    {
        RScaleHelper scale;
        scale.setProperty("from", -60.0);
        scale.setProperty("to", 20.0);
        QCOMPARE(scale.toPosition(0.0), 0.75);
        QCOMPARE(scale.toValue(0.75), 0.0);
        scale.setProperty("reverse", true);
        QCOMPARE(scale.toPosition(0.0), 0.25);
        QCOMPARE(scale.toValue(0.25), 0.0);
        QCOMPARE(scale.toPosition(30.0), 0.0);
        QCOMPARE(scale.toPosition(std::numeric_limits<double>::quiet_NaN()), 0.0);

        QCOMPARE(scale.snap(7.4, 5.0), 5.0);
        QCOMPARE(scale.snap(-7.6, -5.0), -10.0);
        QCOMPARE(scale.snap(7.4, 0.0), 7.4);
        QVERIFY(scale.contains(20.0));
        QVERIFY(!scale.contains(std::numeric_limits<double>::quiet_NaN()));
        // 80 dB over 400 pixels: 30 pixels are 6 dB.
        QCOMPARE(scale.niceStep(400.0, 30.0), 10.0);
        QCOMPARE(scale.niceStep(400.0, 25.0), 5.0);
        QCOMPARE(scale.niceStep(0.0, 25.0), 100.0);
    }

    void scaleHelperReportsOnce()
    {
        RScaleHelper scale;
        scale.setProperty("scale", logarithmic);
        QTest::ignoreMessage(QtWarningMsg,
                             "RScaleHelper::toPosition() range is empty or not above 0 on a logarithmic scale");
        QCOMPARE(scale.toPosition(0.5), 0.0);
        QCOMPARE(scale.toPosition(0.7), 0.0);
        QCOMPARE(scale.toValue(0.5), 0.0);
        QTest::ignoreMessage(QtWarningMsg,
                             "RScaleHelper::toValue() range is empty or not above 0 on a logarithmic scale");
        scale.setProperty("from", 1.0);
        QCOMPARE(scale.toValue(0.5), 1.0);
        QTest::ignoreMessage(QtWarningMsg,
                             "RScaleHelper::toValue() range is empty or not above 0 on a logarithmic scale");
        scale.setProperty("to", std::numeric_limits<double>::quiet_NaN());
        QCOMPARE(scale.toValue(0.5), 1.0);
        QCOMPARE(scale.toValue(0.6), 1.0);
    }

    void axis()
    {
        RAxis axis;
        QCOMPARE(axis.tickCount(), -1);
        QCOMPARE(axis.minValue(), 0);
        QCOMPARE(axis.maxValue(), 1);
        QVERIFY(axis.ticks().isEmpty());
        QVERIFY(axis.flags().testFlag(QQuickItem::ItemHasContents));

        axis.setSize({32.0, 280.0});
        QCOMPARE(axis.ticks().size(), 11);
        QCOMPARE(axis.ticks()[5]->property("label").toString(), u"0.5"_s);
        QCOMPARE(axis.ticks()[5]->property("y").toDouble(), 140.0);
        axis.setHeight(0.0);
        QVERIFY(axis.ticks().isEmpty());
    }

    void axisSignalOrder()
    {
        RAxis axis;
        axis.setHeight(100.0);
        SignalLog log(&axis);
        axis.setMaxValue(100);
        QCOMPARE(log.take(), QStringList({u"maxValueChanged"_s, u"ticksChanged"_s}));
        axis.setTickCount(4);
        QCOMPARE(log.take(), QStringList({u"tickCountChanged"_s, u"ticksChanged"_s}));
        axis.setTickCount(4);
        QCOMPARE(log.take(), QStringList());
        axis.setX(7.0);
        QCOMPARE(log.take(), QStringList{u"ticksChanged"_s});
        axis.setMinValue(100);
        QCOMPARE(log.take(), QStringList({u"minValueChanged"_s, u"ticksChanged"_s}));
        QVERIFY(axis.ticks().isEmpty());
    }

    void oldTicksStayAlive()
    {
        QPointer<QObject> tick;
        {
            RAxis axis;
            axis.setHeight(100.0);
            tick = axis.ticks().first();
            axis.setMinValue(-5);
            QVERIFY(tick);
            QVERIFY(!axis.ticks().contains(tick.data()));
        }
        QVERIFY(!tick);
    }
};

template struct TestClass<tst_PlotHelpers>;
#include "tst_PlotHelpers.moc"
