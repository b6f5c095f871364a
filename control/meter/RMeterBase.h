#pragma once

#include "base/ControlExport.h"
#include "meter/MeterLevels.h"

#include <QtCore/QTimer>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Level meter without looks: instant rise, timed fall, and the fill fractions of its green, yellow and red zones.
///
/// All levels are in dB. `value` is the level fed in, `currentValue` the one displayed, always within
/// `valueMin`…`valueMax`. The plain factors serve the whole bar or, with `split`, the section under `valueSplit`; the
/// `…Max` factors serve the section above it. Factors are computed on read. Every change of a threshold drops the
/// falling peak.
class TAMBLE_CLIENT_CONTROL_EXPORT RMeterBase : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RMeterBase)
    Q_PROPERTY(bool split READ getSplit WRITE setSplit NOTIFY splitChanged)
    Q_PROPERTY(double value READ getValue WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(double valueMin READ getValueMin WRITE setValueMin NOTIFY valueMinChanged)
    /// Level in dB from which on the bar, or the lower section, is yellow.
    Q_PROPERTY(double valueMinYellow READ getValueMinYellow WRITE setValueMinYellow NOTIFY valueMinYellowChanged)
    /// Level in dB from which on the bar, or the lower section, is red.
    Q_PROPERTY(double valueMinRed READ getValueMinRed WRITE setValueMinRed NOTIFY valueMinRedChanged)
    Q_PROPERTY(double valueMax READ getValueMax WRITE setValueMax NOTIFY valueMaxChanged)
    /// Level in dB from which on the upper section is yellow.
    Q_PROPERTY(double valueMaxYellow READ getValueMaxYellow WRITE setValueMaxYellow NOTIFY valueMaxYellowChanged)
    /// Level in dB from which on the upper section is red.
    Q_PROPERTY(double valueMaxRed READ getValueMaxRed WRITE setValueMaxRed NOTIFY valueMaxRedChanged)
    Q_PROPERTY(double valueSplit READ getValueSplit WRITE setValueSplit NOTIFY valueSplitChanged)
    /// Level displayed, in dB, within `valueMin` and `valueMax`; it falls by `currentValueDecreasePerSecond`.
    Q_PROPERTY(double currentValue READ getCurrentValue NOTIFY currentValueChanged)
    /// Lit fractions of the bar, or of the lower section, at most 1; 0 and less is dark: `currentValueFactor` up to the
    /// yellow zone, `currentValueYellowFactor` up to the red one, `currentValueRedFactor` of the whole.
    Q_PROPERTY(double currentValueFactor READ getCurrentValueFactor NOTIFY currentValueFactorChanged)
    Q_PROPERTY(double currentValueYellowFactor READ getCurrentValueYellowFactor NOTIFY currentValueYellowFactorChanged)
    Q_PROPERTY(double currentValueRedFactor READ getCurrentValueRedFactor NOTIFY currentValueRedFactorChanged)
    /// The same of the upper section: `currentValueFactorMax`, `currentValueYellowFactorMax` and
    /// `currentValueRedFactorMax`.
    Q_PROPERTY(double currentValueFactorMax READ getCurrentValueFactorMax NOTIFY currentValueFactorMaxChanged)
    Q_PROPERTY(double currentValueYellowFactorMax READ getCurrentValueYellowFactorMax NOTIFY
                   currentValueYellowFactorMaxChanged)
    Q_PROPERTY(double currentValueRedFactorMax READ getCurrentValueRedFactorMax NOTIFY currentValueRedFactorMaxChanged)
    /// Speed of the fall in dB per second.
    Q_PROPERTY(double currentValueDecreasePerSecond MEMBER m_currentValueDecreasePerSecond)

public:
    explicit RMeterBase(QQuickItem *parent = nullptr);

    /// The one timer of all meters; each call sets it to 50 ms and restarts the running cycle.
    static QTimer &sharedTimer();

    /// Two sections around `valueSplit` instead of one bar; default false.
    bool getSplit() const { return m_split; }
    void setSplit(bool split);
    /// Level fed in, not limited; default -80. A higher level is displayed at once, a lower one by the ticks.
    double getValue() const { return m_value; }
    void setValue(double value);
    /// Lower end of the bar; default -80.
    double getValueMin() const { return m_range.minimum; }
    void setValueMin(double valueMin);
    /// Zone limits of the bar or of the lower section; defaults -12 and -3.
    double getValueMinYellow() const { return m_valueMinYellow; }
    void setValueMinYellow(double valueMinYellow);
    double getValueMinRed() const { return m_valueMinRed; }
    void setValueMinRed(double valueMinRed);
    /// Upper end of the bar; default 6.
    double getValueMax() const { return m_range.maximum; }
    void setValueMax(double valueMax);
    /// Zone limits of the upper section; defaults 1 and 3.
    double getValueMaxYellow() const { return m_valueMaxYellow; }
    void setValueMaxYellow(double valueMaxYellow);
    double getValueMaxRed() const { return m_valueMaxRed; }
    void setValueMaxRed(double valueMaxRed);
    /// Origin of the two sections; default 0.
    double getValueSplit() const { return m_range.split; }
    void setValueSplit(double valueSplit);

    double getCurrentValue() const { return m_currentValue; }
    /// Displays a level at once, limited to the range; NaN shows the minimum.
    ///
    /// Nothing happens when the level equals the one displayed, compared before limiting. So a level beyond the range
    /// signals each time although the display stays.
    void setCurrentValue(double level);
    double getCurrentValueFactor() const;
    double getCurrentValueYellowFactor() const;
    double getCurrentValueRedFactor() const;
    double getCurrentValueFactorMax() const;
    double getCurrentValueYellowFactorMax() const;
    double getCurrentValueRedFactorMax() const;

    /// Drops the display to `valueMin`.
    Q_INVOKABLE void reset();
    /// Raises the display to `value` when that is higher.
    Q_INVOKABLE void refresh();
    /// Does nothing; pages may call it.
    Q_INVOKABLE void redraw();

Q_SIGNALS:
    void splitChanged();
    void valueChanged();
    void valueMinChanged();
    void valueMinYellowChanged();
    void valueMinRedChanged();
    void valueMaxChanged();
    void valueMaxYellowChanged();
    void valueMaxRedChanged();
    void valueSplitChanged();
    void currentValueChanged();
    void currentValueFactorChanged();
    void currentValueYellowFactorChanged();
    void currentValueRedFactorChanged();
    void currentValueFactorMaxChanged();
    void currentValueYellowFactorMaxChanged();
    void currentValueRedFactorMaxChanged();

private:
    template <typename Value>
    void assignThreshold(Value &stored, Value value, void (RMeterBase::*changed)());
    void tick();
    double calcBar(double zoneLimit) const;
    double calcBarMin(double zoneLimit) const;
    double calcBarMax(double zoneLimit) const;

    MeterRange m_range;
    double m_value = -80.0;
    double m_valueMinYellow = -12.0;
    double m_valueMinRed = -3.0;
    double m_valueMaxYellow = 1.0;
    double m_valueMaxRed = 3.0;
    double m_currentValue = -80.0;
    double m_currentValueDecreasePerSecond = 60.0;
    bool m_split = false;
};

} // namespace tamble::client
