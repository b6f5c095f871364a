#pragma once

#include <optional>

namespace tamble::common {

// The numbers that filter records hold, by name. Devices exchange them; a record may hold any other number, too.

/// Shape of an equaliser band, the `type` of an EqFilter.
enum class EqType {
    Peaking = 0,
    LowShelf = 1,
    HighShelf = 2,
    HighPass = 3,
    LowPass = 4,
    AllPass = 5,
    ProportionalQ = 6,
    ConstantQ = 7,
    BandPass = 8,
    Notch = 9,
    LowShelfQ = 10,
    HighShelfQ = 11,
    Asymmetric = 12, ///< Of an AsymmetricEqFilter only.
};

/// `slope` of an equaliser band.
enum class FilterSlope { None = 0, SixDb = 1, TwelveDb = 2 };

/// `category` of a crossover; any other number is a low pass.
enum class CrossoverSide { LowPass = 0, HighPass = 1 };

/// What a designed FIR filter passes.
enum class FirBand { LowPass = 0, HighPass = 1, BandPass = 2 };

struct FirShape
{
    FirBand band = FirBand::LowPass;
    bool minimumPhase = false; ///< Linear phase otherwise.
};

/// The shape that an FIR type stands for; none for the types that are described by their coefficients.
constexpr std::optional<FirShape> firShape(int type)
{
    constexpr int bands = 3;
    if (type < 0 || type >= 2 * bands)
        return std::nullopt;
    return FirShape{FirBand(type % bands), type >= bands};
}

/// Whether the response of an equaliser band depends on its gain.
constexpr bool gainCounts(EqType type)
{
    switch (type) {
    case EqType::HighPass:
    case EqType::LowPass:
    case EqType::AllPass:
    case EqType::BandPass:
    case EqType::Notch:
        return false;
    default:
        return true;
    }
}

/// Whether the response of an equaliser band depends on its Q.
constexpr bool qualityCounts(EqType type, FilterSlope slope)
{
    switch (type) {
    case EqType::HighPass:
    case EqType::LowPass:
        return slope == FilterSlope::TwelveDb;
    case EqType::AllPass:
        return slope != FilterSlope::SixDb;
    case EqType::Peaking:
    case EqType::ProportionalQ:
    case EqType::ConstantQ:
    case EqType::BandPass:
    case EqType::Notch:
    case EqType::LowShelfQ:
    case EqType::HighShelfQ:
        return true;
    default:
        return false;
    }
}

} // namespace tamble::common
