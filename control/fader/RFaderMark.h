#pragma once

#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// A tick as a fader's page draws it.
struct RFaderMark
{
    /// Place on the travel, 0 (bottom) to 1 (top).
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(double position MEMBER position)
    /// Its number; empty for none, or no room for one.
    Q_PROPERTY(QString label MEMBER label)
    /// Whether the tick is a longer one in a colour of its own.
    Q_PROPERTY(bool extra MEMBER isExtra)

public:
    double position = 0.0; // 0 (bottom) to 1 (top) of the travel
    QString label;         // empty: none, or no room for it
    bool isExtra = false;  // longer, in a colour of its own

    bool operator==(const RFaderMark &) const = default;
};

} // namespace tamble::client
