#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

namespace tamble::client {

/// How the texts of a field and the values of its device belong together, where a converter does not say it.
class FieldRules
{
public:
    virtual QString textOf(const QVariant &value) const = 0;
    /// For texts without a problem only.
    virtual QVariant valueOf(const QString &text) const = 0;
    /// Why a text cannot be entered, for people; empty when it can. The text is tidied and not empty.
    virtual QString problemOf(const QString &text) const = 0;

protected:
    ~FieldRules() = default;
};

} // namespace tamble::client
