#include "bodeplot/filters/FilterRecords.h"

#include "bodeplot/filters/FilterFields.h"

#include <utility>

namespace tamble::client {

using namespace tamble::common;

namespace {

template <typename... Records>
FilterRecord::Kind kindOf(CalculationItem *item, const std::variant<std::monostate, Records *...> &)
{
    FilterRecord::Kind kind;
    const auto take = [&](auto *record) {
        if (record)
            kind = record;
    };
    (take(dynamic_cast<Records *>(item)), ...);
    return kind;
}

template <typename Record>
bool equalResponses(const Record &a, const Record &b)
{
    return std::apply([&](const auto &...field) { return (... && (a.*field.member == b.*field.member)); },
                      FilterFields<Record>::response);
}

} // namespace

FilterRecord::FilterRecord(QSharedPointer<CalculationItem> item)
    : m_item(std::move(item))
    , m_kind(kindOf(m_item.data(), Kind()))
{}

RecordDisplay FilterRecord::display() const
{
    return visit([](const auto &record) -> RecordDisplay { return {record.visible, record.bypass}; });
}

bool FilterRecord::hasUnknownSlope() const
{
    return visit([]<typename Record>(const Record &record) {
        if constexpr (requires { record.gain; })
            return record.slope < int(FilterSlope::None) || record.slope > int(FilterSlope::TwelveDb);
        else
            return false;
    });
}

bool FilterRecord::hasResponseOf(const FilterRecord &other) const
{
    return isOfKind(other) &&
           visit([&]<typename Record>(const Record &record) { return equalResponses(record, *other.as<Record>()); });
}

FilterRecord FilterRecord::copy() const
{
    return visit(
        []<typename Record>(const Record &record) { return FilterRecord(QSharedPointer<Record>::create(record)); });
}

void settleRecord(const FilterRecord &record)
{
    if (auto *eq = record.as<EqFilterExtended>(); eq && !gainCounts(EqType(eq->type)))
        eq->gain = 0.0;
    if (auto *xOver = record.as<XOverFilterExtended>()) {
        const bool highPass = CrossoverSide(xOver->category) == CrossoverSide::HighPass;
        xOver->label = highPass ? QStringLiteral("HP") : QStringLiteral("LP");
    }
}

} // namespace tamble::client
