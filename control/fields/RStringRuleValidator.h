#pragma once

#include "base/ControlExport.h"
#include "fields/FieldReason.h"
#include "fields/RStringRuleValidatorRule.h"

#include <tamblecommon-common/StringPattern.h>

#include <QtGui/QValidator>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Validates texts by one of the rules of `RStringRuleValidatorRule`.
///
/// The limits narrow what the rule itself allows, and never widen it. A text that is too short or only wrong as a whole
/// can be typed on; forbidden characters and what exceeds a limit cannot be typed.
class TAMBLE_CLIENT_CONTROL_EXPORT RStringRuleValidator : public QValidator, public FieldReason
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RStringRuleValidator)
    /// Rule for the text, an `RStringRuleValidatorRule` value.
    Q_PROPERTY(int rule MEMBER m_rule NOTIFY ruleChanged)
    /// `minimumLength` and `maximumLength`: bounds of the length in characters; 0 for no limit.
    Q_PROPERTY(int minimumLength MEMBER m_minimumLength NOTIFY minimumLengthChanged)
    Q_PROPERTY(int maximumLength MEMBER m_maximumLength NOTIFY maximumLengthChanged)
    /// Greatest length in bytes of UTF-8; 0 for no limit.
    Q_PROPERTY(int maximumBytes MEMBER m_maximumBytes NOTIFY maximumBytesChanged)
    /// Regular expression of the whole text, for `RULE_PATTERN`. The empty one and, after a warning, an ill-formed one
    /// accept everything. Default empty.
    Q_PROPERTY(QString pattern READ pattern WRITE setPattern NOTIFY patternChanged)

public:
    explicit RStringRuleValidator(QObject *parent = nullptr);

    QString pattern() const { return m_pattern.pattern(); }
    void setPattern(const QString &pattern);

    State validate(QString &text, int &cursor) const override;
    /// Takes away outer blanks where the rule forbids them.
    void fixup(QString &text) const override;
    /// Why a text is not accepted, in a sentence for the user; empty when it is.
    Q_INVOKABLE QString message(const QString &text) const override;

Q_SIGNALS:
    void ruleChanged();
    void minimumLengthChanged();
    void maximumLengthChanged();
    void maximumBytesChanged();
    void patternChanged();

private:
    tamble::common::StringVerdict verdictOn(const QString &text) const;

    int m_rule = RStringRuleValidatorRule::RULE_ANY;
    int m_minimumLength = 0;
    int m_maximumLength = 0;
    int m_maximumBytes = 0;
    tamble::common::StringPattern m_pattern;
};

} // namespace tamble::client
