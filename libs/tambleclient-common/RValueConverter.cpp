#include "RValueConverter.h"

#include "DecimalText.h"
#include "PlainValue.h"

#include <cmath>
#include <limits>
#include <optional>

namespace tamble::client {

namespace {

constexpr QChar noBreakSpace(0x00A0);
constexpr QChar ellipsis(0x2026);
constexpr qsizetype maximumListText = 100'000; // characters behind which no element begins

bool isSameText(QStringView left, QStringView right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

QString sixDigits(double number)
{
    // Adding 0 turns -0 into 0.
    return QString::number(number + 0.0, 'g', 6);
}

} // namespace

RValueConverter::RValueConverter(QObject *parent)
    : QObject(parent)
    , m_displayText(QChar(0x2013))
    , m_nullText(QChar(0x2013))
{}

void RValueConverter::setValue(const QVariant &value)
{
    if (isSameValue(m_value, value))
        return;
    m_value = value;
    updateDisplayText();
    Q_EMIT valueChanged();
}

void RValueConverter::setUnit(const QString &unit)
{
    if (m_unit == unit)
        return;
    m_unit = unit;
    updateDisplayText();
    Q_EMIT unitChanged();
}

void RValueConverter::setPrefix(const QString &prefix)
{
    if (m_prefix == prefix)
        return;
    m_prefix = prefix;
    updateDisplayText();
    Q_EMIT prefixChanged();
}

void RValueConverter::setNullText(const QString &nullText)
{
    if (m_nullText == nullText)
        return;
    m_nullText = nullText;
    updateDisplayText();
    Q_EMIT nullTextChanged();
}

void RValueConverter::setTexts(const QVariantMap &texts)
{
    if (m_texts == texts)
        return;
    m_texts = texts;
    updateDisplayText();
    Q_EMIT textsChanged();
}

QString RValueConverter::toText(const QVariant &value) const
{
    const PlainValue plain = plainValue(value);
    if (std::holds_alternative<std::monostate>(plain))
        return m_nullText;
    if (const std::optional<QString> entry = entryText(value))
        return *entry;
    if (const bool *on = std::get_if<bool>(&plain))
        return *on ? tr("On") : tr("Off");
    if (const double *number = std::get_if<double>(&plain))
        return std::isinf(*number) ? infinityText(*number < 0) : withPrefixAndUnit(sixDigits(*number));
    if (const QString *text = std::get_if<QString>(&plain))
        return *text;

    return listText(std::get<QVariantList>(plain));
}

// Thousands of elements, each with a unit of thousands of characters, are nothing to read.
QString RValueConverter::listText(const QVariantList &list) const
{
    QString text;
    for (const QVariant &element : list) {
        if (text.size() > maximumListText)
            return text + QStringLiteral(", ") + ellipsis;
        if (&element != &list.front())
            text += QStringLiteral(", ");
        text += toText(element);
    }
    return text;
}

QVariant RValueConverter::fromText(const QString &text) const
{
    const QStringView trimmed = QStringView(text).trimmed();
    if (const QVariant entry = entryValue(trimmed); entry.isValid())
        return entry;
    if (isSameText(trimmed, tr("On")))
        return true;
    if (isSameText(trimmed, tr("Off")))
        return false;

    const QStringView bare = withoutPrefixAndUnit(trimmed);
    if (const std::optional<double> number = readDecimal(bare, u'.', 0, Exponent::Allowed))
        return *number;
    if (const std::optional<int> sign = readInfinity(bare))
        return *sign * std::numeric_limits<double>::infinity();

    const bool isNumbersOnly = !m_unit.isEmpty() || !m_prefix.isEmpty();
    if (isNumbersOnly || trimmed.isEmpty() || isSameText(trimmed, m_nullText))
        return {};
    return text;
}

bool RValueConverter::accepts(const QString &text) const
{
    return fromText(text).isValid();
}

void RValueConverter::updateDisplayText()
{
    const QString text = toText(m_value);
    if (m_displayText == text)
        return;
    m_displayText = text;
    Q_EMIT displayTextChanged();
}

std::optional<QString> RValueConverter::entryText(const QVariant &value) const
{
    // Most converters have no entries, and writing the key costs more than the rest of a conversion.
    if (m_texts.isEmpty())
        return std::nullopt;
    const std::optional<QString> key = keyText(plainValue(value));
    if (!key || !m_texts.contains(*key))
        return std::nullopt;
    return m_texts.value(*key).toString();
}

QVariant RValueConverter::entryValue(QStringView text) const
{
    if (text.isEmpty())
        return {};
    for (auto entry = m_texts.constBegin(); entry != m_texts.constEnd(); ++entry) {
        const QString shown = entry->toString();
        if (isSameText(QStringView(shown).trimmed(), text))
            return keyValue(entry.key());
    }
    return {};
}

QString RValueConverter::withPrefixAndUnit(const QString &number, const QString &multiplier) const
{
    const QString unit = multiplier + m_unit;
    return unit.isEmpty() ? m_prefix + number : m_prefix + number + noBreakSpace + unit;
}

QStringView RValueConverter::withoutPrefixAndUnit(QStringView text) const
{
    const QStringView prefix = QStringView(m_prefix).trimmed();
    const QStringView unit = QStringView(m_unit).trimmed();
    if (text.startsWith(prefix, Qt::CaseInsensitive))
        text = text.sliced(prefix.size());
    if (text.endsWith(unit, Qt::CaseInsensitive))
        text = text.chopped(unit.size());
    return text.trimmed();
}

} // namespace tamble::client
