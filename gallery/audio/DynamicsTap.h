#pragma once

#include "AudioTap.h"
#include "Decibels.h"
#include "DynamicsChain.h"

#include <QtCore/QVariantList>

#include <limits>

/// A dynamics processor in the signal path whose static curve is that of a calculator.
///
///     DynamicsTap { channel: 5; points: panel.values; from: panel.thresholdMin; to: panel.thresholdMax }
class DynamicsTap : public AudioTap
{
    Q_OBJECT
    QML_ELEMENT
    /// The calculator's points, x 0…1 to the right, y 0…1 downward. None, the default, pass the signal on.
    Q_PROPERTY(QVariantList points MEMBER m_points NOTIFY pointsChanged FINAL)
    /// Range in dB of the input levels, and of the output levels too: −60…20 by default.
    Q_PROPERTY(double from MEMBER m_from NOTIFY fromChanged FINAL)
    Q_PROPERTY(double to MEMBER m_to NOTIFY toChanged FINAL)
    /// Whether y stands for a gain from `gainFrom` to `gainTo` in dB (−20…20), as in the noise compensation. Off by
    /// default: y is the output level.
    Q_PROPERTY(bool gainCurve MEMBER m_gainCurve NOTIFY gainCurveChanged FINAL)
    Q_PROPERTY(double gainFrom MEMBER m_gainFrom NOTIFY gainFromChanged FINAL)
    Q_PROPERTY(double gainTo MEMBER m_gainTo NOTIFY gainToChanged FINAL)
    /// Gain in dB where the curve lowers the signal to the floor of the plot; NaN, the default, to read it off there.
    Q_PROPERTY(double floorGain MEMBER m_floorGain NOTIFY floorGainChanged FINAL)
    /// Time constants of the level detector in ms: 5 and 150 by default.
    Q_PROPERTY(double attack MEMBER m_attack NOTIFY attackChanged FINAL)
    Q_PROPERTY(double release MEMBER m_release NOTIFY releaseChanged FINAL)
    /// Level in dB that full scale has on the curve; 0 by default, 20 for a device with a full scale of 20 dBu.
    Q_PROPERTY(double fullScale MEMBER m_fullScale NOTIFY fullScaleChanged FINAL)
    /// The loudest moment of the last block, in dB.
    Q_PROPERTY(double inputLevel READ inputLevel NOTIFY readingChanged FINAL)
    Q_PROPERTY(double outputLevel READ outputLevel NOTIFY readingChanged FINAL)
    Q_PROPERTY(double gain READ gain NOTIFY readingChanged FINAL)

public:
    explicit DynamicsTap(QObject *parent = nullptr);

    double inputLevel() const { return m_reading.inputLevel; }
    double outputLevel() const { return m_reading.outputLevel; }
    double gain() const { return m_reading.gain; }

Q_SIGNALS:
    void pointsChanged();
    void fromChanged();
    void toChanged();
    void gainCurveChanged();
    void gainFromChanged();
    void gainToChanged();
    void floorGainChanged();
    void attackChanged();
    void releaseChanged();
    void fullScaleChanged();
    void readingChanged();

protected:
    void sendSettings(GalleryAudio &audio, int tap) override;
    void takeResults(const GalleryAudio &audio, int tap) override;

private:
    QVariantList m_points;
    double m_from = -60.0;
    double m_to = 20.0;
    bool m_gainCurve = false;
    double m_gainFrom = -20.0;
    double m_gainTo = 20.0;
    double m_floorGain = std::numeric_limits<double>::quiet_NaN();
    double m_attack = 5.0;
    double m_release = 150.0;
    double m_fullScale = 0.0;
    DynamicsReading m_reading{floorDb, floorDb, 0.0};
};
