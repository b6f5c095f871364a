#include "DynamicsTap.h"

#include "GalleryAudio.h"

#include <cmath>

DynamicsTap::DynamicsTap(QObject *parent)
    : AudioTap(parent)
{
    for (const auto changed : {&DynamicsTap::pointsChanged, &DynamicsTap::fromChanged, &DynamicsTap::toChanged,
                               &DynamicsTap::gainCurveChanged, &DynamicsTap::gainFromChanged,
                               &DynamicsTap::gainToChanged, &DynamicsTap::floorGainChanged, &DynamicsTap::attackChanged,
                               &DynamicsTap::releaseChanged, &DynamicsTap::fullScaleChanged})
        connect(this, changed, this, &DynamicsTap::settingsChanged);
}

void DynamicsTap::sendSettings(GalleryAudio &audio, int tap)
{
    DynamicsSettings settings;
    for (const QVariant &point : m_points)
        settings.curve.points.append(point.toPointF());
    settings.curve.inputMinimum = m_from;
    settings.curve.inputMaximum = m_to;
    settings.curve.outputMinimum = m_gainCurve ? m_gainFrom : m_from;
    settings.curve.outputMaximum = m_gainCurve ? m_gainTo : m_to;
    settings.curve.meaning = m_gainCurve ? StaticCurve::Meaning::Gain : StaticCurve::Meaning::OutputLevel;
    if (!std::isnan(m_floorGain))
        settings.curve.floorGain = m_floorGain;
    settings.attackMs = m_attack;
    settings.releaseMs = m_release;
    settings.fullScale = m_fullScale;
    audio.engine().setDynamics(tap, channel(), settings);
}

void DynamicsTap::takeResults(const GalleryAudio &audio, int tap)
{
    const auto found = audio.snapshot().dynamics.find(tap);
    if (found == audio.snapshot().dynamics.end() || found->second == m_reading)
        return;
    m_reading = found->second;
    Q_EMIT readingChanged();
}
