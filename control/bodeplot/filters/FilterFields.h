#pragma once

#include "bodeplot/filters/FilterRecords.h"

#include <tuple>

namespace tamble::client {

/// A field of a record, under the name of the property that pages have for it.
template <typename Record, typename Value>
struct FilterField
{
    const char *name;
    Value Record::*member;
};

template <typename Record, typename Value>
FilterField(const char *, Value Record::*) -> FilterField<Record, Value>;

template <typename Record>
constexpr std::tuple bandFields{FilterField{"bypass", &Record::bypass},   FilterField{"type", &Record::type},
                                FilterField{"freq", &Record::freq},       FilterField{"gain", &Record::gain},
                                FilterField{"quality", &Record::quality}, FilterField{"slope", &Record::slope}};

template <typename Record>
constexpr std::tuple oneHandleFields{FilterField{"visible", &Record::visible},
                                     FilterField{"errorFlag", &Record::errorFlag},
                                     FilterField{"label", &Record::label}};

/// The fields of a kind of record: `response`, which its response depends on, and `display`. What reads, watches and
/// compares filters goes by these tables.
template <typename Record>
struct FilterFields;

template <>
struct FilterFields<EqFilterExtended>
{
    static constexpr std::tuple response = bandFields<EqFilterExtended>;
    static constexpr std::tuple display = oneHandleFields<EqFilterExtended>;
};

template <>
struct FilterFields<AsymmetricEqFilterExtended>
{
    using Record = AsymmetricEqFilterExtended;
    static constexpr std::tuple response =
        std::tuple_cat(bandFields<Record>,
                       std::tuple{FilterField{"freq2", &Record::freq2}, FilterField{"quality2", &Record::quality2}});
    static constexpr std::tuple display = oneHandleFields<Record>;
};

template <>
struct FilterFields<XOverFilterExtended>
{
    using Record = XOverFilterExtended;
    static constexpr std::tuple response{FilterField{"bypass", &Record::bypass}, FilterField{"type", &Record::type},
                                         FilterField{"freq", &Record::freq},
                                         FilterField{"category", &Record::category}};
    static constexpr std::tuple display = oneHandleFields<Record>;
};

template <>
struct FilterFields<FIRFilterExtended>
{
    using Record = FIRFilterExtended;
    static constexpr std::tuple response{FilterField{"bypass", &Record::bypass},
                                         FilterField{"type", &Record::type},
                                         FilterField{"order", &Record::order},
                                         FilterField{"freqHP", &Record::freqHP},
                                         FilterField{"freqLP", &Record::freqLP},
                                         FilterField{"slope", &Record::slope},
                                         FilterField{"header", &Record::header},
                                         FilterField{"coefficients", &Record::coefficients},
                                         FilterField{"generateCoefficients", &Record::generateCoefficients}};
    static constexpr std::tuple display{
        FilterField{"visible", &Record::visible}, FilterField{"errorFlagHP", &Record::errorFlagHP},
        FilterField{"errorFlagLP", &Record::errorFlagLP}, FilterField{"labelHP", &Record::labelHP},
        FilterField{"labelLP", &Record::labelLP}};
};

/// Calls `visitor` with each field of a kind of record.
template <typename Record, typename Visitor>
void forEachField(Visitor visitor)
{
    const auto visitAll = [&](const auto &...field) { (visitor(field), ...); };
    std::apply(visitAll, FilterFields<Record>::response);
    std::apply(visitAll, FilterFields<Record>::display);
}

} // namespace tamble::client
