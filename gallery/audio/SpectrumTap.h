#pragma once

#include "AudioTap.h"
#include "Biquad.h"

#include <QtCore/QList>
#include <QtCore/QVariantList>

#include <vector>

/// The spectrum of a channel behind filter sections, in 61 bands from 20 Hz to 20 kHz that are equally wide on a
/// logarithmic axis.
class SpectrumTap : public AudioTap
{
    Q_OBJECT
    QML_ELEMENT
    /// Filter sections that the signal passes one after another, each a list [b0, b1, b2, a1, a2] with a0 = 1. None by
    /// default. What is no such list, and an unstable section, passes the signal on.
    Q_PROPERTY(QVariantList sections READ sections WRITE setSections NOTIFY sectionsChanged FINAL)
    /// Time constant of the average in ms, 300 by default; 0 shows the last third of a second alone.
    Q_PROPERTY(double averaging MEMBER m_averaging NOTIFY averagingChanged FINAL)
    /// Levels in dB at the lower and the upper edge of the plot: −90 and 0 by default.
    Q_PROPERTY(double minimum MEMBER m_minimum NOTIFY minimumChanged FINAL)
    Q_PROPERTY(double maximum MEMBER m_maximum NOTIFY maximumChanged FINAL)
    /// Level of each band in dB: 0 for a full-scale sine, −120 for silence. Empty before the first block.
    Q_PROPERTY(QList<double> levels READ levels NOTIFY levelsChanged FINAL)
    /// The levels for a plotter: x 0 (20 Hz) to 1 (20 kHz), logarithmic; y 0 (`maximum`) to 1 (`minimum`), limited.
    Q_PROPERTY(QVariantList points READ points NOTIFY pointsChanged FINAL)

public:
    explicit SpectrumTap(QObject *parent = nullptr);

    QVariantList sections() const;
    void setSections(const QVariantList &sections);
    /// The same as `sections`, for who designs filters in C++.
    void setCoefficients(const std::vector<BiquadCoefficients> &coefficients);
    QList<double> levels() const { return m_levels; }
    QVariantList points() const;

Q_SIGNALS:
    void sectionsChanged();
    void averagingChanged();
    void minimumChanged();
    void maximumChanged();
    void levelsChanged();
    void pointsChanged();

protected:
    void sendSettings(GalleryAudio &audio, int tap) override;
    void takeResults(const GalleryAudio &audio, int tap) override;

private:
    std::vector<BiquadCoefficients> m_coefficients;
    double m_averaging = 300.0;
    double m_minimum = -90.0;
    double m_maximum = 0.0;
    QList<double> m_levels;
};
