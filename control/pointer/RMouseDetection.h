#pragma once

#include "base/ControlExport.h"

#include <QtQuick/QQuickItem>

#include <initializer_list>
#include <optional>
#include <utility>

namespace tamble::client {

/// Item that knows whether the pointer is over it, even when its children or items above it take the mouse. It takes no
/// events itself. What an item around it cuts off (`clip`) does not count; a hidden or disabled one is never under the
/// pointer. A finger counts as the pointer while it is down.
///
/// It has no size of its own: `anchors.fill: parent` lets it watch its parent. Items that move under a resting pointer
/// are noticed with their next frame.
class TAMBLE_CLIENT_CONTROL_EXPORT RMouseDetection : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RMouseDetection)
    /// False reports the pointer as outside and nothing as pressed, and costs nothing. True by default.
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)
    /// Whether the pointer is over the item.
    Q_PROPERTY(bool containsMouse READ containsMouse NOTIFY containsMouseChanged)
    /// `mouseX` and `mouseY`: place of the pointer in the item, in pixels; the last one while it is outside.
    Q_PROPERTY(qreal mouseX READ mouseX NOTIFY mouseXChanged)
    Q_PROPERTY(qreal mouseY READ mouseY NOTIFY mouseYChanged)
    /// Whether a button was pressed over the item and is still down.
    Q_PROPERTY(bool pressedInside READ pressedInside NOTIFY pressedInsideChanged)

public:
    explicit RMouseDetection(QQuickItem *parent = nullptr);
    ~RMouseDetection() override;

    bool isActive() const { return m_isActive; }
    void setActive(bool active);
    bool containsMouse() const { return m_containsMouse; }
    qreal mouseX() const { return m_place.x(); }
    qreal mouseY() const { return m_place.y(); }
    bool pressedInside() const { return m_pressed != Qt::NoButton; }

Q_SIGNALS:
    void activeChanged();
    void containsMouseChanged();
    void mouseXChanged();
    void mouseYChanged();
    void pressedInsideChanged();
    /// The pointer came over the item.
    void entered();
    /// The pointer left the item, or the item is no longer watched, shown or enabled.
    void exited();
    /// A button was pressed elsewhere in the application.
    void pressedOutside();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    friend class DetectionWatch;
    using Signal = void (RMouseDetection::*)();

    bool isWatched() const { return m_isWatched; }
    std::optional<QPointF> pointer() const { return m_containsMouse ? std::optional(m_place) : std::nullopt; }
    void updateWatched();
    void setPointer(const std::optional<QPointF> &place);
    void press(Qt::MouseButton button, bool isInside);
    void release(Qt::MouseButtons buttons);
    void tell(std::initializer_list<std::pair<bool, Signal>> news);

    bool m_isActive = true;
    bool m_isWatched = false;
    bool m_containsMouse = false;
    QPointF m_place;
    Qt::MouseButtons m_pressed; ///< over the item, and still down
};

} // namespace tamble::client
