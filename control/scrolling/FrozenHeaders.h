#pragma once

#include <QtCore/QMarginsF>

class QQuickItem;

namespace tamble::client {

/// An item some of which stays at the edges of the view around it, above what is scrolled.
class FrozenHeaders
{
public:
    /// How many pixels at each edge of the view are no room for an item inside.
    virtual QMarginsF coveredFor(const QQuickItem &item) const = 0;

protected:
    ~FrozenHeaders() = default;
};

} // namespace tamble::client
