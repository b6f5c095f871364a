#pragma once

#include "base/ControlExport.h"

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Names the rules that `RStringRuleValidator` knows.
class TAMBLE_CLIENT_CONTROL_EXPORT RStringRuleValidatorRule : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RStringRuleValidatorRule)
    QML_UNCREATABLE("You cannot create an instance of the Enums.")

public:
    enum Type : int {
        RULE_ANY = 0,          ///< no control characters
        RULE_ASCII = 1,        ///< printable ASCII
        RULE_ALPHANUMERIC = 2, ///< ASCII letters and digits
        RULE_NAME = 3,         ///< as any, not empty, no blank at either end
        RULE_FILE_NAME = 4,    ///< a name that every file system takes
        RULE_DNS_NAME = 5,     ///< host name in small letters
        RULE_CAP_DNS_NAME = 6, ///< host name, capital letters allowed
        RULE_HEX = 7,          ///< an even number of hexadecimal digits
        RULE_PASSWORD = 8,     ///< printable ASCII without blank, at least 8
        RULE_PATTERN = 9,      ///< the validator's `pattern`
    };
    Q_ENUM(Type)
};

} // namespace tamble::client
