#include "bodeplot/filters/FilterRecords.h"

#include <tuple>

namespace tamble::client {

using namespace tamble::common;

namespace {

template <typename Record>
const Record *as(const CalculationItem *record)
{
    return dynamic_cast<const Record *>(record);
}

/// Compares two records by the fields that `fields` picks; only when both are of that kind.
template <typename Record, typename Fields>
bool equalBy(const CalculationItem *a, const CalculationItem *b, Fields fields)
{
    const auto *first = as<Record>(a);
    const auto *second = as<Record>(b);
    return first && second && fields(*first) == fields(*second);
}

} // namespace

RecordDisplay recordDisplay(const CalculationItem *record)
{
    if (const auto *eq = as<EqFilterExtended>(record))
        return {eq->visible, eq->bypass};
    if (const auto *asymmetric = as<AsymmetricEqFilterExtended>(record))
        return {asymmetric->visible, asymmetric->bypass};
    if (const auto *xOver = as<XOverFilterExtended>(record))
        return {xOver->visible, xOver->bypass};
    if (const auto *fir = as<FIRFilterExtended>(record))
        return {fir->visible, fir->bypass};
    return {};
}

bool hasUnknownSlope(const CalculationItem *record)
{
    const auto isUnknown = [](const auto *band) { return band && (band->slope < 0 || band->slope > 2); };
    return isUnknown(as<EqFilter>(record)) || isUnknown(as<AsymmetricEqFilter>(record));
}

bool isWithoutGain(int eqType)
{
    return (eqType >= 3 && eqType <= 5) || eqType == 8 || eqType == 9;
}

void settleRecord(CalculationItem &record)
{
    if (auto *eq = dynamic_cast<EqFilter *>(&record)) {
        if (isWithoutGain(eq->type))
            eq->gain = 0.0;
    } else if (auto *xOver = dynamic_cast<XOverFilterExtended *>(&record)) {
        xOver->label = xOver->category == 1 ? QStringLiteral("HP") : QStringLiteral("LP");
    }
}

FilterRecord copyRecord(const CalculationItem *record)
{
    if (const auto *eq = as<EqFilterExtended>(record))
        return QSharedPointer<EqFilterExtended>::create(*eq);
    if (const auto *asymmetric = as<AsymmetricEqFilterExtended>(record))
        return QSharedPointer<AsymmetricEqFilterExtended>::create(*asymmetric);
    if (const auto *xOver = as<XOverFilterExtended>(record))
        return QSharedPointer<XOverFilterExtended>::create(*xOver);
    if (const auto *fir = as<FIRFilterExtended>(record))
        return QSharedPointer<FIRFilterExtended>::create(*fir);
    return {};
}

bool sameResponse(const CalculationItem *a, const CalculationItem *b)
{
    return equalBy<EqFilter>(
               a, b,
               [](const EqFilter &f) { return std::tie(f.bypass, f.type, f.freq, f.gain, f.quality, f.slope); }) ||
           equalBy<AsymmetricEqFilter>(a, b,
                                       [](const AsymmetricEqFilter &f) {
                                           return std::tie(f.bypass, f.freq, f.gain, f.quality, f.slope, f.freq2,
                                                           f.quality2);
                                       }) ||
           equalBy<XOverFilter>(a, b,
                                [](const XOverFilter &f) { return std::tie(f.bypass, f.type, f.freq, f.category); }) ||
           equalBy<FIRFilter>(a, b, [](const FIRFilter &f) {
               return std::tie(f.bypass, f.type, f.order, f.freqHP, f.freqLP, f.slope, f.header, f.coefficients,
                               f.generateCoefficients);
           });
}

} // namespace tamble::client
