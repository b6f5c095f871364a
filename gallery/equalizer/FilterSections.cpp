#include "FilterSections.h"

#include "DigitalSection.h"
#include "GalleryAudio.h"
#include "response/CrossoverSections.h"
#include "response/EqSections.h"

#include <QtCore/QVariantMap>

using namespace tamble::common;

namespace {

template <typename Filter>
void takeEqValues(Filter &filter, const QVariantMap &band)
{
    filter.bypass = band.value(QStringLiteral("bypass")).toBool();
    filter.type = band.value(QStringLiteral("type")).toInt();
    filter.freq = band.value(QStringLiteral("freq")).toDouble();
    filter.gain = band.value(QStringLiteral("gain")).toDouble();
    filter.quality = band.value(QStringLiteral("quality")).toDouble();
    filter.slope = band.value(QStringLiteral("slope")).toInt();
}

response::SectionChain chainOf(const QVariantMap &band, double sampleRate)
{
    const QString kind = band.value(QStringLiteral("kind")).toString();
    if (kind == QLatin1String("eq")) {
        EqFilter filter;
        takeEqValues(filter, band);
        return response::eqSections(filter, sampleRate);
    }
    if (kind == QLatin1String("asym")) {
        AsymmetricEqFilter filter;
        takeEqValues(filter, band);
        filter.freq2 = band.value(QStringLiteral("freq2")).toDouble();
        filter.quality2 = band.value(QStringLiteral("quality2")).toDouble();
        return response::asymmetricSections(filter, sampleRate);
    }
    if (kind == QLatin1String("xover")) {
        XOverFilter filter;
        filter.bypass = band.value(QStringLiteral("bypass")).toBool();
        filter.type = band.value(QStringLiteral("type")).toInt();
        filter.freq = band.value(QStringLiteral("freq")).toDouble();
        filter.category = band.value(QStringLiteral("category")).toInt();
        return response::crossoverSections(filter, sampleRate);
    }
    return {};
}

} // namespace

FilterSections::FilterSections(QObject *parent)
    : QObject(parent)
{}

double FilterSections::sampleRate() const
{
    const GalleryAudio *audio = GalleryAudio::instance();
    return audio ? double(audio->engine().source().sampleRate()) : 48000.0;
}

QVariantList FilterSections::of(const QVariantList &bands, double sampleRate) const
{
    QVariantList sections;
    for (const QVariant &band : bands) {
        const response::SectionChain chain = chainOf(band.toMap(), sampleRate);
        for (std::size_t i = 0; i < std::size_t(chain.count); ++i) {
            QVariantList numbers;
            for (const double number : digitalSection(chain.sections.at(i)))
                numbers.append(number);
            sections.append(QVariant(numbers));
        }
    }
    return sections;
}

bool FilterSections::qualityCounts(int type, int slope) const
{
    return tamble::common::qualityCounts(tamble::common::EqType(type), tamble::common::FilterSlope(slope));
}
