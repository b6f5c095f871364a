#pragma once

#include "base/ControlExport.h"
#include "handles/HandleDrag.h"
#include "handles/HandleStack.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QElapsedTimer>
#include <QtCore/QPointF>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// What can be dragged on a plot, which its parent fills: the gestures of mouse, fingers and keys.
///
/// A press takes hold of the handle and gives it the focus; it is changed once the pointer has left a slack of 3
/// pixels. Shift slows to a tenth, Ctrl keeps to the direction of the larger movement, Esc takes the gesture back.
/// Keys that follow each other within 0.4 s are one gesture. Each finger holds one handle. What a gesture means for a
/// value is up to the QML type that is built on this.
///
/// Of handles that lie on each other a press takes the one touched last; a click on it that moves nothing leads to the
/// next one, after the time in which a double click could follow.
class TAMBLE_CLIENT_CONTROL_EXPORT RHandleBase : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RHandleBase)
    /// Where the handle stands in its parent, in pixels.
    Q_PROPERTY(QPointF place MEMBER m_place NOTIFY placeChanged FINAL)
    /// Pixels per density-independent unit, which slack and reach of a press are measured in.
    Q_PROPERTY(qreal unitLength MEMBER m_unitLength NOTIFY unitLengthChanged FINAL)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly NOTIFY readOnlyChanged FINAL)
    /// Whether a drag brings the handle's place under the pointer; else it keeps the offset of the press.
    Q_PROPERTY(bool jumpsUnderPointer MEMBER m_jumpsUnderPointer NOTIFY jumpsUnderPointerChanged FINAL)
    Q_PROPERTY(bool rightButton READ takesRightButton WRITE setRightButton NOTIFY rightButtonChanged FINAL)
    /// Whether the right button turns what the handle edits.
    Q_PROPERTY(bool turnable MEMBER m_turnable NOTIFY turnableChanged FINAL)
    /// Whether the wheel with Ctrl pages.
    Q_PROPERTY(bool takesWheel MEMBER m_takesWheel NOTIFY takesWheelChanged FINAL)
    /// The pointer is over the handle.
    Q_PROPERTY(bool hovered READ isHovered NOTIFY hoveredChanged FINAL)
    Q_PROPERTY(bool dragging READ isDragging NOTIFY draggingChanged FINAL)
    Q_PROPERTY(bool turning READ isTurning NOTIFY draggingChanged FINAL)
    Q_PROPERTY(bool changing READ isChanging NOTIFY changingChanged FINAL)
    Q_PROPERTY(bool keyFocus READ hasKeyFocus NOTIFY keyFocusChanged FINAL)

public:
    explicit RHandleBase(QQuickItem *parent = nullptr);

    /// Takes hold and gets the focus, but sends no change; false by default.
    bool isReadOnly() const { return m_readOnly; }
    void setReadOnly(bool readOnly);
    /// Whether the right button takes hold, too, to turn what is `turnable`; false by default.
    bool takesRightButton() const { return m_rightButton; }
    void setRightButton(bool takes);
    bool isHovered() const { return m_hovered; }
    /// A pointer holds the handle.
    bool isDragging() const { return m_hold != Hold::None; }
    /// The right button holds it, to turn it.
    bool isTurning() const { return m_hold == Hold::Turn; }
    /// A gesture has begun to change something and is not over.
    bool isChanging() const { return m_changing; }
    /// Focused by keys, not by a press.
    bool hasKeyFocus() const { return m_keyFocus; }

    bool contains(const QPointF &point) const override;

    /// Begins a change; nothing within one.
    Q_INVOKABLE void open();
    /// Ends a change under way.
    Q_INVOKABLE void close();
    /// As a key does: so many steps to the right or up, as a part of the gesture of the keys before.
    Q_INVOKABLE void stepBy(qreal right, qreal up, bool fine = false);

Q_SIGNALS:
    void placeChanged();
    void unitLengthChanged();
    void readOnlyChanged();
    void jumpsUnderPointerChanged();
    void rightButtonChanged();
    void turnableChanged();
    void takesWheelChanged();
    void hoveredChanged();
    void draggingChanged();
    void changingChanged();
    void keyFocusChanged();

    /// A pointer has taken hold.
    void taken();
    /// The pointer has let go; after ended() or canceled().
    void dropped();
    /// The first change of a gesture follows.
    void begun();
    /// The pointer has drawn the handle to this point of its parent, which may lie outside.
    void movedTo(qreal x, qreal y, bool fine);
    /// The right button has been drawn this far, in pixels downwards from where it was pressed.
    void turned(qreal way);
    /// Keys ask for this many steps: 1 for an arrow, 0.2 with Shift, which is `fine`, 6 with Ctrl.
    void stepped(qreal right, qreal up, bool fine);
    /// PageUp (1), PageDown (-1), or the wheel with Ctrl.
    void paged(qreal up);
    /// The changes since begun() stand.
    void ended();
    /// What was changed since begun() is to be taken back.
    void canceled();
    /// A double click, or the End key.
    void resetRequested();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void touchEvent(QTouchEvent *event) override;
    void touchUngrabEvent() override;
    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverLeaveEvent(QHoverEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    enum class Hold { None, Move, Turn };

    QPointF inPlot(const QPointF &scenePoint) const;
    std::vector<RHandleBase *> handlesOfPlot() const;
    static std::vector<HandleSpot> spotsOf(const std::vector<RHandleBase *> &handles);
    void take(const QPointF &point, Hold hold);
    void follow(const QPointF &point, Qt::KeyboardModifiers modifiers);
    void release();
    void abort();
    void drop();
    void cancelChange();
    void reset();
    void resetByDoubleClick();
    void page(qreal up);
    void goOnInStack();
    void setHovered(bool hovered);
    void setKeyFocus(bool keyFocus);

    QPointF m_place;
    qreal m_unitLength = 1.0;
    bool m_readOnly = false;
    bool m_jumpsUnderPointer = false;
    bool m_rightButton = false;
    bool m_turnable = false;
    bool m_takesWheel = false;
    bool m_hovered = false;
    bool m_changing = false;
    bool m_keyFocus = false;

    Hold m_hold = Hold::None;
    HandleDrag m_drag;
    std::uint64_t m_touched = 0;
    bool m_wasTouchedLast = false; // before the present press
    QPointF m_pressed;
    int m_touchId = -1;
    QElapsedTimer m_sinceTap;
    QBasicTimer m_keysEnd; // runs since the last key
    QBasicTimer m_goOn;    // runs since a click that leads to the next handle
    int m_wheelRest = 0;   // eighths of a degree short of a step
};

} // namespace tamble::client
