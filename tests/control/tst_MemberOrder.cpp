#include "support/Rows.h"
#include "support/TestProgram.h"

#include "dynamics/AGCCalculator.h"
#include "dynamics/ANCCalculator.h"
#include "dynamics/CompressorCalculator.h"
#include "dynamics/DuckerCalculator.h"
#include "dynamics/LimiterCalculator.h"
#include "dynamics/NoiseGateCalculator.h"
#include "meter/RMeterBase.h"

using namespace tamble::client;
using namespace Qt::StringLiterals;

/// Pages and tools list members by index, so their order is promised.
class tst_MemberOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void properties_data()
    {
        const auto row = rowsOf([](const QMetaObject *type, const QString &properties, const QString &changes) {
            QStringList names;
            for (int i = type->propertyOffset(); i < type->propertyCount(); ++i)
                names << QString::fromLatin1(type->property(i).name());
            QCOMPARE(names.join(u' '), properties);

            names.clear();
            for (int i = type->methodOffset(); i < type->methodCount(); ++i) {
                const QString name = QString::fromLatin1(type->method(i).name());
                if (name.endsWith("Changed"_L1))
                    names << name.chopped(7);
            }
            QCOMPARE(names.join(u' '), changes);
        });
        row("limiter", &LimiterCalculator::staticMetaObject,
            u"calculatorActive threshold thresholdMin thresholdMax limiterBypassed values"_s,
            u"calculatorActive values thresholdMin threshold thresholdMax limiterBypassed"_s);
        row("AGC", &AGCCalculator::staticMetaObject,
            u"calculatorActive agcBypassed levelIn levelInMin levelInMax threshold thresholdMin thresholdMax "
            "thresholdOffset kneeIn kneeInMin kneeInMax ratio ratioMin ratioMax values"_s,
            u"calculatorActive agcBypassed values levelIn levelInMin levelInMax threshold thresholdMin thresholdMax "
            "thresholdOffset ratio ratioMin ratioMax kneeIn kneeInMin kneeInMax"_s);
        row("ducker", &DuckerCalculator::staticMetaObject,
            u"calculatorActive duckerBypassed threshold thresholdMin thresholdMax duckingLevel duckingLevelMin "
            "duckingLevelMax values"_s,
            u"calculatorActive duckerBypassed values thresholdMin threshold thresholdMax duckingLevelMin duckingLevel "
            "duckingLevelMax"_s);
        row("gate", &NoiseGateCalculator::staticMetaObject,
            u"calculatorActive gateBypassed threshold thresholdMin thresholdMax depth depthMin depthMax values"_s,
            u"calculatorActive gateBypassed values thresholdMin threshold thresholdMax depthMin depth depthMax"_s);
        row("compressor", &CompressorCalculator::staticMetaObject,
            u"calculatorActive compressorBypassed softKneeActive softKneeInDbu threshold thresholdMin thresholdMax "
            "ratio ratioMin ratioMax makeUpGain makeUpGainMin makeUpGainMax values"_s,
            u"calculatorActive compressorBypassed softKneeActive values thresholdMin threshold softKneeInDbu "
            "thresholdMax ratioMin ratio ratioMax makeUpGainMin makeUpGain makeUpGainMax"_s);
        row("ANC", &ANCCalculator::staticMetaObject,
            u"calculatorActive ancBypassed freezeGain ambientThreshold ambientThresholdMin ambientThresholdMax "
            "ambientThresholdOffset minimumGain minimumGainMin minimumGainMax maximumGain maximumGainMin "
            "maximumGainMax ratio ratioMin ratioMax values"_s,
            u"calculatorActive ancBypassed freezeGain values ambientThreshold ambientThresholdMin "
            "ambientThresholdMax ambientThresholdOffset minimumGain minimumGainMin minimumGainMax maximumGain "
            "maximumGainMin maximumGainMax ratio ratioMin ratioMax"_s);
        row("meter", &RMeterBase::staticMetaObject,
            u"split value valueMin valueMinYellow valueMinRed valueMax valueMaxYellow valueMaxRed valueSplit "
            "currentValue currentValueFactor currentValueYellowFactor currentValueRedFactor currentValueFactorMax "
            "currentValueYellowFactorMax currentValueRedFactorMax currentValueDecreasePerSecond"_s,
            u"split value valueMin valueMinYellow valueMinRed valueMax valueMaxYellow valueMaxRed valueSplit "
            "currentValue currentValueFactor currentValueYellowFactor currentValueRedFactor currentValueFactorMax "
            "currentValueYellowFactorMax currentValueRedFactorMax"_s);
    }
    void properties() { checkRow(); }
};

template struct TestClass<tst_MemberOrder>;

#include "tst_MemberOrder.moc"
