#pragma once

#include "bodeplot/filters/BodeplotEnums.h"
#include "bodeplot/filters/RBodeplotCalculationItem.h"

namespace tamble::client {

/// An equaliser band with two corners (`freq`/`quality` and `freq2`/`quality2`) that share one gain.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotAsymmetricEqFilter : public tamble::client::RBodeplotCalculationItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotAsymmetricEqFilter)
    /// Takes the band out of the sum; its handle is drawn hollow.
    Q_PROPERTY(bool bypass MEMBER m_bypass NOTIFY bypassChanged)
    /// Stays `RBodeplotEqTypeEnum.ASYMMETRIC`; other values do not change the response.
    Q_PROPERTY(int type MEMBER m_type NOTIFY typeChanged)
    /// Frequency of one flank in Hz.
    Q_PROPERTY(qreal freq MEMBER m_freq NOTIFY freqChanged)
    /// Gain in dB between the two flanks.
    Q_PROPERTY(qreal gain MEMBER m_gain NOTIFY gainChanged)
    /// Q of the flank at `freq`.
    Q_PROPERTY(qreal quality MEMBER m_quality NOTIFY qualityChanged)
    /// For exchange with devices; the response does not depend on it.
    Q_PROPERTY(int slope MEMBER m_slope NOTIFY slopeChanged)
    /// Whether the handle is the selected one.
    Q_PROPERTY(bool selected MEMBER m_selected NOTIFY selectedChanged)
    /// Up to three letters on the handle.
    Q_PROPERTY(QString label MEMBER m_label NOTIFY labelChanged)
    /// Marks the handle as one whose device reports an error.
    Q_PROPERTY(bool errorFlag MEMBER m_errorFlag NOTIFY errorFlagChanged)
    /// Frequency of the other flank in Hz; the two come in either order.
    Q_PROPERTY(qreal freq2 MEMBER m_freq2 NOTIFY freq2Changed)
    /// Q of the flank at `freq2`.
    Q_PROPERTY(qreal quality2 MEMBER m_quality2 NOTIFY quality2Changed)

public:
    explicit RBodeplotAsymmetricEqFilter(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void bypassChanged(bool value);
    void typeChanged(int value);
    void freqChanged(qreal value);
    void gainChanged(qreal value);
    void qualityChanged(qreal value);
    void slopeChanged(int value);
    /// Follows a change of the item's `visible`, which tells whether handle and individual curve are drawn.
    void visibleChanged(bool value);
    void selectedChanged(bool value);
    void labelChanged(const QString &value);
    void errorFlagChanged(bool value);
    void freq2Changed(qreal value);
    void quality2Changed(qreal value);

private:
    bool m_bypass = false;
    int m_type = RBodeplotEqTypeEnum::ASYMMETRIC;
    qreal m_freq = 20.0;
    qreal m_gain = 0.0;
    qreal m_quality = 1.0;
    int m_slope = RBodeplotSlopeTypeEnum::SLOPE_NULL_SLOPE;
    bool m_selected = false;
    QString m_label;
    bool m_errorFlag = false;
    qreal m_freq2 = 20.0;
    qreal m_quality2 = 1.0;
};

} // namespace tamble::client
