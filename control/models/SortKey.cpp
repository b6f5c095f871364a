#include "models/SortKey.h"

#include <QtCore/QDateTime>
#include <QtCore/QLocale>

#include <algorithm>
#include <cmath>
#include <optional>

namespace tamble::client {

namespace {

std::optional<long double> numberOf(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::Short:
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return value.toLongLong();
    case QMetaType::UChar:
    case QMetaType::UShort:
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return value.toULongLong();
    case QMetaType::Float:
    case QMetaType::Double:
        return value.toDouble();
    case QMetaType::QDate:
        return value.toDate().toJulianDay();
    case QMetaType::QTime:
        return value.toTime().msecsSinceStartOfDay();
    case QMetaType::QDateTime:
        return value.toDateTime().toMSecsSinceEpoch();
    default:
        return value.metaType().flags().testFlag(QMetaType::IsEnumeration) ? std::optional(value.toLongLong())
                                                                           : std::nullopt;
    }
}

// The C locale has no collation; digits would not count as numbers there.
QLocale collationLocale()
{
    const QLocale locale = QLocale().collation();
    return locale.language() == QLocale::C ? QLocale(QLocale::English) : locale;
}

} // namespace

KeyOrder::KeyOrder(Texts texts, Qt::CaseSensitivity sensitivity)
    : m_texts(texts)
    , m_sensitivity(sensitivity)
    , m_collator(collationLocale())
{
    m_collator.setNumericMode(true);
    m_collator.setCaseSensitivity(sensitivity);
}

SortKey KeyOrder::keyOf(const QVariant &value) const
{
    if (value.typeId() == QMetaType::QString)
        return textKey(value.toString());
    if (const std::optional<long double> number = numberOf(value))
        return std::isnan(*number) ? SortKey(NoValue()) : SortKey(*number);
    return value.canConvert<QString>() ? textKey(value.toString()) : SortKey(NoValue());
}

SortKey KeyOrder::textKey(const QString &text) const
{
    return m_texts == Texts::Natural ? SortKey(m_collator.sortKey(text)) : SortKey(text);
}

int KeyOrder::compare(const SortKey &a, const SortKey &b) const
{
    if (a.index() != b.index())
        return a.index() < b.index() ? -1 : 1;
    if (const auto *number = std::get_if<long double>(&a)) {
        const long double other = *std::get_if<long double>(&b);
        return *number < other ? -1 : int(*number > other);
    }
    if (const auto *key = std::get_if<QCollatorSortKey>(&a))
        return key->compare(*std::get_if<QCollatorSortKey>(&b));
    if (const auto *text = std::get_if<QString>(&a)) {
        const QString &other = *std::get_if<QString>(&b);
        return m_texts == Texts::Locale ? text->localeAwareCompare(other) : text->compare(other, m_sensitivity);
    }
    return 0;
}

void SortKeys::reserve(int rows)
{
    if (std::size_t(rows) > m_keys.size())
        m_keys.resize(std::size_t(rows));
}

void SortKeys::change(int first, int last)
{
    const std::size_t end = std::min(std::size_t(last) + 1, m_keys.size());
    for (auto row = std::size_t(first); row < end; ++row)
        m_keys[row] = NotReadYet();
}

void SortKeys::insert(int first, int last)
{
    if (std::size_t(first) < m_keys.size())
        m_keys.insert(m_keys.begin() + first, std::size_t(last - first) + 1, SortKey());
}

void SortKeys::remove(int first, int last)
{
    const std::size_t end = std::min(std::size_t(last) + 1, m_keys.size());
    if (std::size_t(first) < end)
        m_keys.erase(m_keys.begin() + first, m_keys.begin() + std::ptrdiff_t(end));
}

} // namespace tamble::client
