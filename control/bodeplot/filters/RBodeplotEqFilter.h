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
    /// Takes the band out of the sum; its handle is drawn hollow.
    Q_PROPERTY(bool bypass MEMBER m_bypass NOTIFY bypassChanged)
    /// Shape of the band, an `RBodeplotEqTypeEnum` value.
    Q_PROPERTY(int type MEMBER m_type NOTIFY typeChanged)
    /// Centre or corner frequency in Hz.
    Q_PROPERTY(qreal freq MEMBER m_freq NOTIFY freqChanged)
    /// Gain in dB; high pass, low pass, all pass, band pass and notch have none.
    Q_PROPERTY(qreal gain MEMBER m_gain NOTIFY gainChanged)
    /// Q of the band, for the shapes that have one.
    Q_PROPERTY(qreal quality MEMBER m_quality NOTIFY qualityChanged)
    /// Slope of shelves and passes, an `RBodeplotSlopeTypeEnum` value.
    Q_PROPERTY(int slope MEMBER m_slope NOTIFY slopeChanged)
    /// Whether the handle is the selected one.
    Q_PROPERTY(bool selected MEMBER m_selected NOTIFY selectedChanged)
    /// Up to three letters on the handle.
    Q_PROPERTY(QString label MEMBER m_label NOTIFY labelChanged)
    /// Marks the handle as one whose device reports an error.
    Q_PROPERTY(bool errorFlag MEMBER m_errorFlag NOTIFY errorFlagChanged)

public:
    explicit RBodeplotEqFilter(QQuickItem *parent = nullptr);
    ~RBodeplotEqFilter() override;

Q_SIGNALS:
    void bypassChanged(bool value);
    void typeChanged(int value);
    void freqChanged(qreal value);
    void gainChanged(qreal value);
    void qualityChanged(qreal value);
    void slopeChanged(int value);
    /// Follows a change of the item's `visible`.
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
