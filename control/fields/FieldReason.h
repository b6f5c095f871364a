#pragma once

#include "base/ControlExport.h"

#include <QtCore/QString>
#include <QtGui/QValidator>

namespace tamble::client {

/// What the validators of this folder have in common beside Qt's base: they tell why they do not accept a text.
class TAMBLE_CLIENT_CONTROL_EXPORT FieldReason
{
public:
    FieldReason() = default;
    virtual ~FieldReason();
    FieldReason(const FieldReason &) = delete;
    FieldReason &operator=(const FieldReason &) = delete;

    /// One translated sentence without a full stop, for the user; empty for an acceptable text.
    virtual QString message(const QString &text) const = 0;

    /// The message of whatever validator a field has; empty for none and for those of other kinds.
    static QString of(const QValidator *validator, const QString &text);
    /// Why a validator does not accept a text, whatever kind it is of; empty when it does, and for none.
    static QString problemOf(const QValidator *validator, const QString &text);
};

} // namespace tamble::client
