#include "support/Rows.h"
#include "support/SignalLog.h"
#include "support/TestProgram.h"

#include "dynamics/AGCCalculator.h"
#include "dynamics/ANCCalculator.h"
#include "dynamics/CompressorCalculator.h"
#include "dynamics/DuckerCalculator.h"
#include "dynamics/LimiterCalculator.h"
#include "dynamics/NoiseGateCalculator.h"

#include <limits>
#include <memory>

using namespace tamble::client;
using namespace Qt::StringLiterals;

using Factory = std::shared_ptr<QObject> (*)();

namespace {

template <typename Calculator>
std::shared_ptr<QObject> make()
{
    return std::make_shared<Calculator>();
}

/// Own properties of a class, in declaration order.
QStringList ownProperties(const QMetaObject &type)
{
    QStringList names;
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i)
        names << QString::fromLatin1(type.property(i).name());
    return names;
}

const QVariantList identity{QPointF(0, 1), QPointF(1, 0)};

} // namespace

class tst_Calculators : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults_data()
    {
        const Rows<Factory, QString, QString, QVariantList> row;
        row("limiter", Factory(make<LimiterCalculator>), u"calculatorActive limiterBypassed"_s, {}, identity);
        row("AGC", Factory(make<AGCCalculator>), u"agcBypassed"_s, {}, {});
        row("ducker", Factory(make<DuckerCalculator>), u"calculatorActive duckerBypassed"_s, {}, identity);
        row("gate", Factory(make<NoiseGateCalculator>), u"calculatorActive gateBypassed"_s, {}, identity);
        row("compressor", Factory(make<CompressorCalculator>), u"calculatorActive compressorBypassed"_s,
            u"ratio ratioMin ratioMax"_s, identity);
        row("ANC", Factory(make<ANCCalculator>), u"ancBypassed freezeGain"_s, {}, {});
    }

    void defaults()
    {
        const auto &[factory, trueFlags, ones, values] = Rows<Factory, QString, QString, QVariantList>::current();
        const std::shared_ptr<QObject> calculator = factory();
        for (const QString &name : ownProperties(*calculator->metaObject())) {
            const QVariant value = calculator->property(name.toLatin1());
            if (value.typeId() == QMetaType::Bool)
                QCOMPARE(value.toBool(), trueFlags.split(u' ').contains(name));
            else if (value.typeId() == QMetaType::Double)
                QCOMPARE(value.toDouble(), ones.split(u' ').contains(name) ? 1.0 : 0.0);
            else
                QCOMPARE(value.toList(), values);
        }
    }

    void signalsOfSetter_data()
    {
        const Rows<Factory, QString> row;
        // Each property announces itself but for these, which are announced by the signal of another property.
        row("limiter", Factory(make<LimiterCalculator>), {});
        row("AGC", Factory(make<AGCCalculator>), u"kneeInMin:kneeIn kneeInMax:kneeIn"_s);
        row("ducker", Factory(make<DuckerCalculator>), {});
        row("gate", Factory(make<NoiseGateCalculator>), {});
        row("compressor", Factory(make<CompressorCalculator>), {});
        row("ANC", Factory(make<ANCCalculator>), u"minimumGainMax:minimumGain maximumGainMax:maximumGain"_s);
    }

    void signalsOfSetter()
    {
        const auto &[factory, except] = Rows<Factory, QString>::current();
        const std::shared_ptr<QObject> calculator = factory();
        SignalLog log(calculator.get());
        const QStringList exceptions = except.split(u' ');
        for (const QString &name : ownProperties(*calculator->metaObject())) {
            if (name == u"values" || name.endsWith("Bypassed"_L1))
                continue; // stays bypassed, so that the gate does not test its bounds and announces every curve
            const QVariant old = calculator->property(name.toLatin1());
            const QVariant changed = old.typeId() == QMetaType::Bool ? QVariant(!old.toBool()) : QVariant(5.5);
            QString announced = name;
            for (const QString &exception : exceptions) {
                if (exception.startsWith(name + u':'))
                    announced = exception.section(u':', 1);
            }
            log.onSignal = [&] { QCOMPARE(calculator->property(name.toLatin1()), changed); };
            calculator->setProperty(name.toLatin1(), changed);
            QCOMPARE(log.take(), QStringList({u"valuesChanged"_s, announced + u"Changed"_s}));
            calculator->setProperty(name.toLatin1(), changed);
            QCOMPARE(log.take(), QStringList());
        }
    }

    void gateClearsSilently()
    {
        NoiseGateCalculator gate;
        gate.setThresholdMin(-60.0);
        gate.setDepthMax(60.0);
        gate.setDepth(20.0);
        gate.setGateBypassed(false);
        QCOMPARE(gate.values().size(), 4);

        SignalLog log(&gate);
        gate.setThreshold(10.0);
        QCOMPARE(log.take(), QStringList({u"thresholdChanged"_s}));
        QVERIFY(gate.values().isEmpty());
        gate.setThreshold(-30.0);
        QCOMPARE(log.take(), QStringList({u"valuesChanged"_s, u"thresholdChanged"_s}));
        QCOMPARE(gate.values().size(), 4);
    }

    void pointsStayInsideThePlot_data() { defaults_data(); }
    void pointsStayInsideThePlot()
    {
        const Factory factory = std::get<0>(Rows<Factory, QString, QString, QVariantList>::current());
        using Limits = std::numeric_limits<double>;
        constexpr double odd[] = {Limits::quiet_NaN(),
                                  Limits::infinity(),
                                  -Limits::infinity(),
                                  Limits::max(),
                                  -Limits::max(),
                                  Limits::denorm_min(),
                                  0.0,
                                  -3.0};

        const std::shared_ptr<QObject> calculator = factory();
        calculator->setProperty("calculatorActive", true);
        QStringList numbers;
        for (const QString &name : ownProperties(*calculator->metaObject())) {
            const QVariant value = calculator->property(name.toLatin1());
            if (name.endsWith("Bypassed"_L1))
                calculator->setProperty(name.toLatin1(), false);
            else if (name == u"softKneeActive")
                calculator->setProperty(name.toLatin1(), true);
            else if (value.typeId() == QMetaType::Double)
                numbers << name;
        }
        // Each pair of numbers takes each pair of odd values, over an ordinary setting of the others.
        for (const QString &first : numbers) {
            for (const QString &second : numbers) {
                for (const QString &name : numbers)
                    calculator->setProperty(name.toLatin1(), name.endsWith("Min"_L1)   ? -60.0
                                                             : name.endsWith("Max"_L1) ? 20.0
                                                                                       : 6.0);
                for (const double a : odd) {
                    calculator->setProperty(first.toLatin1(), a);
                    for (const double b : odd) {
                        calculator->setProperty(second.toLatin1(), b);
                        for (const QVariant &value : calculator->property("values").toList()) {
                            const QPointF point = value.toPointF();
                            const bool inside = point.x() >= 0 && point.x() <= 1 && point.y() >= 0 && point.y() <= 1;
                            QVERIFY2(inside, qPrintable(u"%1=%2 %3=%4"_s.arg(first).arg(a).arg(second).arg(b)));
                        }
                    }
                }
            }
        }
    }
};

template struct TestClass<tst_Calculators>;
#include "tst_Calculators.moc"
