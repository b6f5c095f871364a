#pragma once

#include <tamblecommon-math/CalculationItem.h>

#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include <concepts>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace tamble::client {

// What a curve keeps of each filter: the record that is evaluated, and what only its display needs.

struct EqFilterExtended : tamble::common::EqFilter
{
    bool visible = true;
    bool errorFlag = false;
    QString label;
};

struct AsymmetricEqFilterExtended : tamble::common::AsymmetricEqFilter
{
    bool visible = true;
    bool errorFlag = false;
    QString label;
};

struct XOverFilterExtended : tamble::common::XOverFilter
{
    bool visible = true;
    bool errorFlag = false;
    QString label;
};

struct FIRFilterExtended : tamble::common::FIRFilter
{
    bool visible = true;
    bool errorFlagHP = false;
    bool errorFlagLP = false;
    QString labelHP;
    QString labelLP;
};

/// How the curve of one record is drawn.
struct RecordDisplay
{
    bool visible = false; ///< False for null records and for those of no known kind, too.
    bool bypass = false;

    bool operator==(const RecordDisplay &) const = default;
};

/// A record as a curve holds it: shared with whoever handed it over, its kind found once. Records are equal when they
/// are the same object.
class FilterRecord
{
public:
    /// One of the four kinds, or none: a null record, or one without display fields.
    using Kind = std::variant<std::monostate, EqFilterExtended *, AsymmetricEqFilterExtended *, XOverFilterExtended *,
                              FIRFilterExtended *>;

    FilterRecord() = default;
    FilterRecord(QSharedPointer<tamble::common::CalculationItem> item);
    template <std::derived_from<tamble::common::CalculationItem> Record>
    FilterRecord(QSharedPointer<Record> record)
        : FilterRecord(QSharedPointer<tamble::common::CalculationItem>(std::move(record)))
    {}

    tamble::common::CalculationItem *item() const { return m_item.data(); }
    /// The record when it is of this kind, else null.
    template <typename Record>
    Record *as() const
    {
        Record *const *record = std::get_if<Record *>(&m_kind);
        return record ? *record : nullptr;
    }
    /// Calls `visitor` with the record as its kind; of no kind, returns an empty result.
    template <typename Visitor>
    auto visit(Visitor visitor) const
    {
        using Result = std::invoke_result_t<Visitor &, EqFilterExtended &>;
        return std::visit(
            [&](auto kind) -> Result {
                if constexpr (std::is_same_v<decltype(kind), std::monostate>)
                    return Result();
                else
                    return visitor(*kind);
            },
            m_kind);
    }

    RecordDisplay display() const;
    /// Whether a band of an equaliser has a slope that RBodeplotSlopeTypeEnum does not know; false for other records.
    bool hasUnknownSlope() const;
    bool isOfKind(const FilterRecord &other) const { return m_kind.index() == other.m_kind.index(); }
    /// Whether both records are of one kind and have the same response; false for records of no kind.
    bool hasResponseOf(const FilterRecord &other) const;
    /// An own copy with its display fields; null for a record of no kind.
    FilterRecord copy() const;

    explicit operator bool() const { return !m_item.isNull(); }
    bool operator==(const FilterRecord &other) const { return m_item == other.m_item; }

private:
    QSharedPointer<tamble::common::CalculationItem> m_item;
    Kind m_kind;
};

using FilterRecords = std::vector<FilterRecord>;

/// Brings a record in the form in which it is evaluated and shown: pass bands, all passes and notches have no gain, and
/// a crossover is labelled by its side.
void settleRecord(const FilterRecord &record);

} // namespace tamble::client
