#pragma once

#include "base/ControlExport.h"

#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Declared only: nothing follows from its properties yet.
///
/// Item that knows whether the pointer is over it even when its children handle hover. It takes no events.
class TAMBLE_CLIENT_CONTROL_EXPORT RMouseDetection : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RMouseDetection)
    /// False reports the pointer as outside.
    Q_PROPERTY(bool active MEMBER m_active NOTIFY activeChanged)
    /// Whether the pointer is over the item.
    Q_PROPERTY(bool containsMouse READ containsMouse NOTIFY containsMouseChanged)
    /// `mouseX` and `mouseY`: place of the pointer in the item, in pixels.
    Q_PROPERTY(qreal mouseX READ mouseX NOTIFY mouseXChanged)
    Q_PROPERTY(qreal mouseY READ mouseY NOTIFY mouseYChanged)
    /// Whether a button was pressed over the item and is still down.
    Q_PROPERTY(bool pressedInside READ pressedInside NOTIFY pressedInsideChanged)

public:
    explicit RMouseDetection(QQuickItem *parent = nullptr);

    bool containsMouse() const { return m_containsMouse; }
    qreal mouseX() const { return m_mouseX; }
    qreal mouseY() const { return m_mouseY; }
    bool pressedInside() const { return m_pressedInside; }

Q_SIGNALS:
    void activeChanged();
    void containsMouseChanged();
    void mouseXChanged();
    void mouseYChanged();
    void pressedInsideChanged();
    /// The pointer came over the item.
    void entered();
    /// The pointer left the item.
    void exited();
    /// A button was pressed elsewhere in the application.
    void pressedOutside();

private:
    bool m_active = true;
    bool m_containsMouse = false;
    qreal m_mouseX = 0.0;
    qreal m_mouseY = 0.0;
    bool m_pressedInside = false;
};

} // namespace tamble::client
