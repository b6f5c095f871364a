#pragma once

#include "base/ControlExport.h"

#include <QtCore/QObject>
#include <QtCore/QVariant>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// The piecewise linear travel laws of TransferTable.h, for QML.
class TAMBLE_CLIENT_CONTROL_EXPORT RTransferTable : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RTransferTable)
    QML_SINGLETON

public:
    using QObject::QObject;

    /// The points as a list of lists [level, position].
    Q_INVOKABLE QVariantList points(double minimum, double maximum) const;
    /// Place of a level (dB) on the travel, 0 to 1; levels outside the range stand at its ends.
    Q_INVOKABLE double position(double level, double minimum, double maximum) const;
    /// Level (dB) at a place of 0 to 1; places outside give the ends of the range.
    Q_INVOKABLE double level(double position, double minimum, double maximum) const;
};

} // namespace tamble::client
