#pragma once

#include "base/ControlExport.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QPointF>
#include <QtCore/QPointer>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

namespace tamble::client {

class DragGhost;

/// What a picture can be dragged away from: by the mouse once it has left the place of the press, by a finger after a
/// long press. Esc and whatever takes the pointer away end the drag; the picture then returns. What the drag means is
/// up to the class derived from this.
class TAMBLE_CLIENT_CONTROL_EXPORT DragSource : public QQuickItem
{
    Q_OBJECT
    QML_ANONYMOUS
    /// Whether a drag is under way.
    Q_PROPERTY(bool dragging READ isDragging NOTIFY draggingChanged FINAL)

public:
    explicit DragSource(QQuickItem *parent = nullptr);
    ~DragSource() override;

    bool isDragging() const { return m_phase == Phase::Dragging; }

Q_SIGNALS:
    void draggingChanged();

protected:
    enum class Finger { Waits, BeginsAtOnce };

    /// How a finger begins a drag: after a long press, the default, or like a mouse.
    void setFinger(Finger finger) { m_finger = finger; }
    /// The picture of the drag under way.
    DragGhost *ghost() const;
    /// Where it was pressed, in the scene.
    QPointF pressedAt() const { return m_pressedAt; }
    /// Ends a drag under way as Esc does. A derived class calls it in its destructor.
    void cancelDrag();

    /// Whether a press there, in this item's coordinates, may begin a drag.
    virtual bool beginsAt(const QPointF &point) const = 0;
    /// What the picture is taken of; null for no drag now.
    virtual QQuickItem *pictured() = 0;
    virtual qreal pictureOpacity() const { return 0.6; }
    virtual void dragBegins() {}
    /// The pointer has moved this far from `pressedAt`, in pixels of the scene; the picture moves as far as returned.
    virtual QPointF dragMoves(const QPointF &way) { return way; }
    /// The pointer has let go. Whether the drag was taken; else the picture returns.
    virtual bool dragEnds() = 0;
    /// Nobody takes the drag.
    virtual void dragIsCanceled() {}

    bool eventFilter(QObject *watched, QEvent *event) override;
    bool childMouseEventFilter(QQuickItem *item, QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void touchEvent(QTouchEvent *event) override;
    void touchUngrabEvent() override;
    void timerEvent(QTimerEvent *event) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    enum class Phase {
        Idle,
        Pressed, ///< May become a drag.
        Dragging,
        Over, ///< The drag was cancelled while the pointer is still held.
    };

    bool press(const QMouseEvent &event);
    bool follow(const QPointF &scenePosition);
    bool takeFromChild(const QMouseEvent &event);
    bool release();
    void begin();
    void finish(Phase next);
    void holdPointer();

    QPointer<DragGhost> m_ghost;
    QPointF m_pressedAt;
    QBasicTimer m_longPress;
    Phase m_phase = Phase::Idle;
    Finger m_finger = Finger::Waits;
};

} // namespace tamble::client
