#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace tamble::client {

/// What a field demands of any text, whatever it means.
struct FieldLimits
{
    Q_DECLARE_TR_FUNCTIONS(FieldLimits)

public:
    bool isRequired = false;
    int maximumBytes = 0; ///< Of UTF-8; 0 for no limit.
    int maximumLines = 0; ///< 0 for no limit.

    /// Why a text is not within the limits, for people; empty when it is.
    QString problemOf(const QString &text) const;
    /// Where a text must end that was typed or pasted in front of `caret`, so that the bytes suffice: at a whole
    /// character, and never within what was there `before`. `caret` when nothing is to be cut.
    int endWithinBytes(const QString &text, const QString &before, int caret) const;
};

} // namespace tamble::client
