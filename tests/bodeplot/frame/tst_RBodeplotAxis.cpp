#include "bodeplot/frame/RBodeplotAxis.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

using namespace tamble::client;

/// The labels of an axis, and what is logged when there are none.
class tst_RBodeplotAxis : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void axisLabels()
    {
        RBodeplotAxis axis;
        axis.setSize({300.0, 20.0});
        axis.setProperty("xAxisTickValues", QVariantList{200, 2000});
        axis.setProperty("yAxisTickValues", QVariantList{100});
        QSignalSpy changed(&axis, &RBodeplotAxis::labelsChanged);
        QCOMPARE(axis.labels().size(), 2);
        const QVariantMap label = axis.labels().constFirst().toMap();
        QCOMPARE(label.keys(), QStringList({"position", "text", "value"}));
        QCOMPARE(label.value(QStringLiteral("value")), QVariant(200.0));
        QCOMPARE(label.value(QStringLiteral("text")), QVariant(QStringLiteral("200")));
        QCOMPARE(label.value(QStringLiteral("position")).toDouble(), 100.0);

        axis.setHeight(30.0);
        axis.setProperty("yAxisTickValues", QVariantList{500});
        QCOMPARE(changed.count(), 0);

        axis.setProperty("horizontal", false);
        QCOMPARE(textsOf(axis), QStringList{"500"});
        QCOMPARE(changed.count(), 1);
        axis.setProperty("minimum", 20000.0);
        QCOMPARE(changed.count(), 2);
        QVERIFY(axis.labels().isEmpty());
    }

    void axisLogsOnce_data()
    {
        const Rows<int, double, double, QByteArray> row;
        row("no step", RBodeplotAxisScaleEnum::LINEAR, 20.0, 0.0,
            "RBodeplotAxis::updateLabels() delta must be positive");
        row("tiny step", RBodeplotAxisScaleEnum::LINEAR, 20.0, 1e-9,
            "RBodeplotAxis::updateLabels() more than 1000 labels");
        row("logarithm of 0", int(RBodeplotAxisScaleEnum::LOGARITHMIC), 0.0, 10.0,
            "RBodeplotAxis::updateLabels() minimum of a logarithmic axis must be positive");
    }

    void axisLogsOnce()
    {
        const auto &[scale, minimum, delta, message] = Rows<int, double, double, QByteArray>::current();
        RBodeplotAxis axis;
        axis.setProperty("maximum", 60.0);
        axis.setProperty("scale", scale);
        QTest::ignoreMessage(QtWarningMsg, message);
        axis.setProperty("minimum", minimum);
        axis.setProperty("delta", delta);
        axis.setSize({300.0, 20.0});
        axis.setSize({400.0, 20.0});
        QVERIFY(axis.labels().isEmpty());

        axis.setProperty("delta", 20.0);
        axis.setProperty("minimum", 30.0);
        QTest::ignoreMessage(QtWarningMsg, message);
        axis.setProperty("minimum", minimum);
        axis.setProperty("delta", delta);
    }

private:
    static QStringList textsOf(RBodeplotAxis &axis)
    {
        QStringList all;
        for (const QVariant &label : axis.labels())
            all.append(label.toMap().value(QStringLiteral("text")).toString());
        return all;
    }
};

template struct TestClass<tst_RBodeplotAxis>;
#include "tst_RBodeplotAxis.moc"
