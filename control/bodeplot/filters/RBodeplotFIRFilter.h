#pragma once

#include "bodeplot/filters/BodeplotEnums.h"
#include "bodeplot/filters/RBodeplotCalculationItem.h"

namespace tamble::client {

/// An FIR filter with a high-pass and a low-pass corner in Hz. A new one passes everything: its coefficients are the
/// unit impulse of length `order`, which is what its header says.
class TAMBLE_CLIENT_CONTROL_EXPORT RBodeplotFIRFilter : public tamble::client::RBodeplotCalculationItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RBodeplotFIRFilter)
    /// Takes the filter out of the sum; its handles are drawn hollow.
    Q_PROPERTY(bool bypass MEMBER m_bypass NOTIFY bypassChanged)
    /// Kind of the filter, an `RBodeplotFIRTypeEnum` value; kinds above 5 are described by `coefficients`.
    Q_PROPERTY(int type MEMBER m_type NOTIFY typeChanged)
    /// Number of taps of a designed filter.
    Q_PROPERTY(int order MEMBER m_order NOTIFY orderChanged)
    /// Corner frequencies in Hz: `freqHP` of the high pass, `freqLP` of the low pass.
    Q_PROPERTY(qreal freqHP MEMBER m_freqHP NOTIFY freqHPChanged)
    Q_PROPERTY(qreal freqLP MEMBER m_freqLP NOTIFY freqLPChanged)
    /// Stop-band attenuation of a designed filter: 0 for 60 dB, 1 for 80 dB, 2 for 100 dB.
    Q_PROPERTY(int slope MEMBER m_slope NOTIFY slopeChanged)
    /// One line that tells devices what the coefficients are.
    Q_PROPERTY(QString header MEMBER m_header NOTIFY headerChanged)
    /// Taps of the impulse response, first one first; the unit impulse by default.
    Q_PROPERTY(QList<qreal> coefficients MEMBER m_coefficients NOTIFY coefficientsChanged)
    /// Whether low, high and band passes are designed from their corners; false takes `coefficients` as they are.
    Q_PROPERTY(bool generateCoefficients MEMBER m_generateCoefficients NOTIFY generateCoefficientsChanged)
    /// Mark a handle as one whose device reports an error: `errorFlagHP` the high pass, `errorFlagLP` the low pass.
    Q_PROPERTY(bool errorFlagHP MEMBER m_errorFlagHP NOTIFY errorFlagHPChanged)
    Q_PROPERTY(bool errorFlagLP MEMBER m_errorFlagLP NOTIFY errorFlagLPChanged)
    /// Whether one of the handles is the selected one.
    Q_PROPERTY(bool selected MEMBER m_selected NOTIFY selectedChanged)
    /// Up to three letters on the handles: `labelHP` for the high pass, `labelLP` for the low pass.
    Q_PROPERTY(QString labelHP MEMBER m_labelHP NOTIFY labelHPChanged)
    Q_PROPERTY(QString labelLP MEMBER m_labelLP NOTIFY labelLPChanged)

public:
    explicit RBodeplotFIRFilter(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void bypassChanged(bool value);
    void typeChanged(int value);
    void freqHPChanged(qreal value);
    void freqLPChanged(qreal value);
    void slopeChanged(int value);
    void headerChanged(const QString &value);
    void generateCoefficientsChanged(bool value);
    void errorFlagHPChanged(bool value);
    void errorFlagLPChanged(bool value);
    /// Follows a change of the item's `visible`, which tells whether handles and individual curve are drawn.
    void visibleChanged(bool value);
    void selectedChanged(bool value);
    void labelHPChanged(const QString &value);
    void labelLPChanged(const QString &value);
    void orderChanged(int value);
    void coefficientsChanged(const QList<qreal> &value);

private:
    bool m_bypass = false;
    int m_type = RBodeplotFIRTypeEnum::FIR_DEF;
    int m_order = 512;
    qreal m_freqHP = 1600.0;
    qreal m_freqLP = 16000.0;
    int m_slope = 0;
    QString m_header = QStringLiteral("VELA-Net FIR-Filter=Thru");
    QList<qreal> m_coefficients;
    bool m_generateCoefficients = true;
    bool m_errorFlagHP = false;
    bool m_errorFlagLP = false;
    bool m_selected = false;
    QString m_labelHP;
    QString m_labelLP;
};

} // namespace tamble::client
