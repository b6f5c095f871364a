#pragma once

#include <QtCore/QCollator>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <variant>
#include <vector>

namespace tamble::client {

struct NotReadYet
{};
struct NoValue
{};

/// What rows are compared by: a number, a text as it is or, for natural sorting, the collator's key of a text.
///
/// The alternatives stand in the order in which they are sorted. A `long double` holds every integer of 64 bits.
using SortKey = std::variant<NotReadYet, long double, QString, QCollatorSortKey, NoValue>;

/// How values become keys and keys are compared: numbers before texts, and behind them what has no place in an order.
class KeyOrder
{
public:
    enum class Texts { Plain, Locale, Natural };

    KeyOrder(Texts texts, Qt::CaseSensitivity sensitivity);

    SortKey keyOf(const QVariant &value) const;
    /// Negative when `a` comes first, 0 for equals.
    int compare(const SortKey &a, const SortKey &b) const;

private:
    SortKey textKey(const QString &text) const;

    Texts m_texts;
    Qt::CaseSensitivity m_sensitivity;
    QCollator m_collator;
};

/// Keys of the rows of a list. Each is made when it is first asked for, and forgotten when its row changes.
class SortKeys
{
public:
    template <typename Make>
    const SortKey &at(int row, Make &&make)
    {
        if (std::size_t(row) >= m_keys.size())
            m_keys.resize(std::size_t(row) + 1);
        SortKey &key = m_keys[std::size_t(row)];
        if (std::holds_alternative<NotReadYet>(key))
            key = make();
        return key;
    }
    /// Room for so many rows, so that no reference moves while two are compared.
    void reserve(int rows);
    void clear() { m_keys.clear(); }
    void change(int first, int last);
    void insert(int first, int last);
    void remove(int first, int last);

private:
    std::vector<SortKey> m_keys;
};

} // namespace tamble::client
