#pragma once

#include "bodeplot/filters/BodeplotEnums.h"
#include "bodeplot/filters/RBodeplotCalculationItem.h"

namespace tamble::client {

/// One equaliser band as a page declares it: frequency in Hz, gain in dB, Q.
///
/// `visible` tells whether handle and individual curve are drawn. A curve gives its filters no visual parent, so it
/// does not follow the visibility of the page around; its notification carries the value like those of the other
/// properties.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotEqFilter : public tamble::client::RBodeplotCalculationItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotEqFilter)
    Q_PROPERTY(bool bypass MEMBER m_bypass NOTIFY bypassChanged)
    Q_PROPERTY(int type MEMBER m_type NOTIFY typeChanged)
    Q_PROPERTY(qreal freq MEMBER m_freq NOTIFY freqChanged)
    Q_PROPERTY(qreal gain MEMBER m_gain NOTIFY gainChanged)
    Q_PROPERTY(qreal quality MEMBER m_quality NOTIFY qualityChanged)
    Q_PROPERTY(int slope MEMBER m_slope NOTIFY slopeChanged)
    Q_PROPERTY(bool selected MEMBER m_selected NOTIFY selectedChanged)
    Q_PROPERTY(QString label MEMBER m_label NOTIFY labelChanged)
    Q_PROPERTY(bool errorFlag MEMBER m_errorFlag NOTIFY errorFlagChanged)

public:
    explicit RBodeplotEqFilter(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void bypassChanged(bool value);
    void typeChanged(int value);
    void freqChanged(qreal value);
    void gainChanged(qreal value);
    void qualityChanged(qreal value);
    void slopeChanged(int value);
    void visibleChanged(bool value);
    void selectedChanged(bool value);
    void labelChanged(const QString &value);
    void errorFlagChanged(bool value);

private:
    bool m_bypass = false;
    int m_type = RBodeplotEqTypeEnum::EQ_PEQ;
    qreal m_freq = 20.0;
    qreal m_gain = 0.0;
    qreal m_quality = 1.0;
    int m_slope = RBodeplotSlopeTypeEnum::SLOPE_NULL_SLOPE;
    bool m_selected = false;
    QString m_label;
    bool m_errorFlag = false;
};

} // namespace tamble::client
