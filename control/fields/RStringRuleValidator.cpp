#include "fields/RStringRuleValidator.h"

#include "base/ControlLog.h"

#include <tamblecommon-common/StringRules.h>

namespace tamble::client {

namespace {

using common::StringFault;
using common::StringRule;
using common::StringVerdict;

StringRule ruleOf(int value)
{
    return static_cast<StringRule>(value);
}

QString characterText(char32_t character)
{
    if (QChar::isSpace(character))
        return RStringRuleValidator::tr("A blank is not allowed here");
    // Half a pair, a control character or one without a shape would leave nothing between the quotation marks.
    if (!QChar::isPrint(character))
        return RStringRuleValidator::tr("A character that cannot be seen is not allowed here");
    return RStringRuleValidator::tr("\"%1\" is not allowed here").arg(QString::fromUcs4(&character, 1));
}

QString lengthText(StringFault fault, qsizetype limit)
{
    const bool isShort = fault == StringFault::TooShort;
    if (limit == 1)
        return isShort ? RStringRuleValidator::tr("At least one character")
                       : RStringRuleValidator::tr("At most one character");
    return (isShort ? RStringRuleValidator::tr("At least %1 characters")
                    : RStringRuleValidator::tr("At most %1 characters"))
        .arg(limit);
}

QString shapeText(const StringVerdict &verdict)
{
    switch (verdict.fault) {
    case StringFault::OuterBlank:
        return RStringRuleValidator::tr("No blank at the beginning or the end");
    case StringFault::TrailingDot:
        return RStringRuleValidator::tr("No dot at the end");
    case StringFault::ReservedName:
        return RStringRuleValidator::tr("Computers keep this name for a device");
    case StringFault::EmptyLabel:
        return RStringRuleValidator::tr("A dot needs a letter or digit on both sides");
    case StringFault::LabelTooLong:
        return RStringRuleValidator::tr("At most %1 characters without a dot").arg(verdict.limit);
    case StringFault::LabelHyphen:
        return verdict.position == 0 ? RStringRuleValidator::tr("No hyphen at the beginning")
                                     : RStringRuleValidator::tr("No hyphen at the end or next to a dot");
    case StringFault::OddLength:
        return RStringRuleValidator::tr("One more digit is needed, they come in pairs");
    case StringFault::PatternIncomplete:
        return RStringRuleValidator::tr("This text is not complete yet");
    default:
        return RStringRuleValidator::tr("This text does not have the form that is needed here");
    }
}

} // namespace

RStringRuleValidator::RStringRuleValidator(QObject *parent)
    : QValidator(parent)
{
    // A field looks at its text again when its validator reports a change.
    connect(this, &RStringRuleValidator::ruleChanged, this, &QValidator::changed);
    connect(this, &RStringRuleValidator::minimumLengthChanged, this, &QValidator::changed);
    connect(this, &RStringRuleValidator::maximumLengthChanged, this, &QValidator::changed);
    connect(this, &RStringRuleValidator::maximumBytesChanged, this, &QValidator::changed);
    connect(this, &RStringRuleValidator::patternChanged, this, &QValidator::changed);
}

void RStringRuleValidator::setPattern(const QString &pattern)
{
    if (pattern == m_pattern.pattern())
        return;
    m_pattern = common::StringPattern(pattern);
    if (!m_pattern.isWellFormed())
        warnOfPage(
            this,
            QStringLiteral("the ill-formed pattern \"%1\" accepts everything: %2").arg(pattern, m_pattern.errorText()));
    Q_EMIT patternChanged();
}

QValidator::State RStringRuleValidator::validate(QString &text, int &) const
{
    return static_cast<State>(verdictOn(text).state);
}

void RStringRuleValidator::fixup(QString &text) const
{
    if (!common::validate(u" ", ruleOf(m_rule)).isAcceptable())
        text = text.trimmed();
}

QString RStringRuleValidator::message(const QString &text) const
{
    const StringVerdict verdict = verdictOn(text);
    switch (verdict.fault) {
    case StringFault::None:
        return {};
    case StringFault::ForbiddenCharacter:
        return characterText(verdict.character);
    case StringFault::TooLong:
    case StringFault::TooShort:
        return lengthText(verdict.fault, verdict.limit);
    case StringFault::TooManyBytes:
        return tr("At most %1 bytes, and most special characters take two or more").arg(verdict.limit);
    default:
        return shapeText(verdict);
    }
}

StringVerdict RStringRuleValidator::verdictOn(const QString &text) const
{
    return common::validate(text, ruleOf(m_rule), {m_minimumLength, m_maximumLength, m_maximumBytes, m_pattern});
}

} // namespace tamble::client
