#include "fields/FieldSettings.h"

#include "fields/FieldReason.h"
#include "fields/FieldRules.h"

#include <QtGui/QValidator>

#include <utility>

namespace tamble::client {

void FieldSettings::setRequired(bool required)
{
    if (std::exchange(m_limits.isRequired, required) == required)
        return;
    judge();
    Q_EMIT requiredChanged();
}

void FieldSettings::setMaximumBytes(int bytes)
{
    if (std::exchange(m_limits.maximumBytes, bytes) == bytes)
        return;
    judge();
    Q_EMIT maximumBytesChanged();
}

void FieldSettings::setMaximumLines(int lines)
{
    if (std::exchange(m_limits.maximumLines, lines) == lines)
        return;
    judge();
    Q_EMIT maximumLinesChanged();
}

void FieldSettings::setConfirmed(bool confirmed)
{
    if (std::exchange(m_isConfirmed, confirmed) == confirmed)
        return;
    updateMarks();
    Q_EMIT confirmedChanged();
}

void FieldSettings::setConsistent(bool consistent)
{
    if (std::exchange(m_isConsistent, consistent) == consistent)
        return;
    applyRules();
    updateMarks();
    Q_EMIT consistentChanged();
}

void FieldSettings::setConverter(RValueConverter *converter)
{
    if (m_converter == converter)
        return;
    if (m_converter)
        m_converter->disconnect(this);
    m_converter = converter;
    // Its own value is not used, but its text changes with all of its settings.
    if (converter)
        connect(converter, &RValueConverter::displayTextChanged, this, &FieldSettings::applyRules);
    applyRules();
    Q_EMIT converterChanged();
}

void FieldSettings::setRules(FieldRules *rules)
{
    m_rules = rules;
    applyRules();
}

void FieldSettings::applyRules()
{
    showValue();
    judge();
}

QString FieldSettings::textOf(const QVariant &value) const
{
    return m_rules ? m_rules->textOf(value) : m_converter ? m_converter->toText(value) : value.toString();
}

QVariant FieldSettings::valueOf(const QString &text) const
{
    return m_rules ? m_rules->valueOf(text) : m_converter ? m_converter->fromText(text) : QVariant(text);
}

QString FieldSettings::tidied(const QString &text, const QValidator *validator) const
{
    QString tidy = text;
    if (m_trim && validator)
        validator->fixup(tidy);
    return m_trim ? tidy.trimmed() : tidy;
}

QString FieldSettings::problemOf(const QString &text, const QValidator *validator, bool isTyped) const
{
    const QString beyondLimits = m_limits.problemOf(text);
    if (!beyondLimits.isEmpty())
        return beyondLimits;
    if (m_rules)
        return m_rules->problemOf(text);
    if (text.isEmpty())
        return {};
    // What it makes of a missing value cannot be read either, and is nobody's fault.
    if (m_converter && !m_converter->accepts(text))
        return isTyped ? tr("This cannot be read") : QString();
    return FieldReason::problemOf(validator, text);
}

} // namespace tamble::client
