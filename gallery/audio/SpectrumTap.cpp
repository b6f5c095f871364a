#include "SpectrumTap.h"

#include "GalleryAudio.h"

#include <QtCore/QPointF>

#include <algorithm>

SpectrumTap::SpectrumTap(QObject *parent)
    : AudioTap(parent)
{
    connect(this, &SpectrumTap::sectionsChanged, this, &SpectrumTap::settingsChanged);
    connect(this, &SpectrumTap::averagingChanged, this, &SpectrumTap::settingsChanged);
    for (const auto changed : {&SpectrumTap::minimumChanged, &SpectrumTap::maximumChanged, &SpectrumTap::levelsChanged})
        connect(this, changed, this, &SpectrumTap::pointsChanged);
}

QVariantList SpectrumTap::sections() const
{
    QVariantList sections;
    for (const BiquadCoefficients &section : m_coefficients)
        sections.append(QVariant(QVariantList{section.b0, section.b1, section.b2, section.a1, section.a2}));
    return sections;
}

void SpectrumTap::setSections(const QVariantList &sections)
{
    std::vector<BiquadCoefficients> coefficients;
    for (const QVariant &section : sections) {
        const QVariantList numbers = section.toList();
        const auto number = [&numbers](qsizetype i) { return numbers[i].toDouble(); };
        coefficients.push_back(numbers.size() == 5
                                   ? BiquadCoefficients{number(0), number(1), number(2), number(3), number(4)}
                                   : BiquadCoefficients());
    }
    setCoefficients(coefficients);
}

void SpectrumTap::setCoefficients(const std::vector<BiquadCoefficients> &coefficients)
{
    if (coefficients == m_coefficients)
        return;
    m_coefficients = coefficients;
    Q_EMIT sectionsChanged();
}

QVariantList SpectrumTap::points() const
{
    QVariantList points;
    for (qsizetype i = 0; i < m_levels.size(); ++i) {
        const double fall = (m_maximum - m_levels[i]) / (m_maximum - m_minimum);
        points.append(QPointF(double(i) / double(m_levels.size() - 1), fall < 1.0 ? std::max(fall, 0.0) : 1.0));
    }
    return points;
}

void SpectrumTap::sendSettings(GalleryAudio &audio, int tap)
{
    audio.engine().setSpectrum(tap, channel(), {m_coefficients, m_averaging});
}

void SpectrumTap::takeResults(const GalleryAudio &audio, int tap)
{
    const auto found = audio.snapshot().spectra.find(tap);
    if (found == audio.snapshot().spectra.end())
        return;
    const QList<double> levels(found->second.begin(), found->second.end());
    if (levels == m_levels)
        return;
    m_levels = levels;
    Q_EMIT levelsChanged();
}
