#pragma once

#include "base/ControlExport.h"
#include "fields/RStringRuleValidatorRule.h"

#include <QtGui/QValidator>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Declared only: it accepts every text so far.
///
/// Validates texts by one of the rules of `RStringRuleValidatorRule`.
///
/// Lengths count characters, `maximumBytes` counts UTF-8; 0 means no limit. `pattern` serves `RULE_PATTERN`.
class TAMBLE_CLIENT_CONTROL_EXPORT RStringRuleValidator : public QValidator
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
    /// Regular expression of the whole text, for `RULE_PATTERN`.
    Q_PROPERTY(QString pattern MEMBER m_pattern NOTIFY patternChanged)

public:
    explicit RStringRuleValidator(QObject *parent = nullptr);

    State validate(QString &text, int &cursor) const override;

Q_SIGNALS:
    void ruleChanged();
    void minimumLengthChanged();
    void maximumLengthChanged();
    void maximumBytesChanged();
    void patternChanged();

private:
    int m_rule = RStringRuleValidatorRule::RULE_ANY;
    int m_minimumLength = 0;
    int m_maximumLength = 0;
    int m_maximumBytes = 0;
    QString m_pattern;
};

} // namespace tamble::client
