#pragma once

#include "workspace/EdgeScroll.h"
#include "workspace/KeyNudge.h"
#include "workspace/PanGesture.h"
#include "workspace/WorkspaceGesture.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <memory>
#include <optional>

class QTouchEvent;
class QWheelEvent;

namespace tamble::client {

class WorkspaceBase;
class WorkspaceItemBase;

/// Makes gestures of what the pointer, fingers and the wheel do to a workspace; one at a time.
class WorkspaceInput : public QObject
{
public:
    explicit WorkspaceInput(WorkspaceBase &workspace);

    void press(const PointerAt &pointer, Qt::MouseButton button, bool isByFinger);
    void move(const PointerAt &pointer);
    void release(const PointerAt &pointer);
    /// Follows the second press.
    void doubleClick();
    void touch(const QTouchEvent &event);
    void wheel(const QWheelEvent &event);

    bool isUnderWay() const { return m_gesture || m_nudge.isUnderWay(); }
    /// Takes back what is under way; the pointer means nothing more until it is released.
    void cancel();
    /// Likewise, but the items that the keys have moved stay in their hands.
    void cancelPointer();
    /// The view has moved under the pointer.
    void viewChange();

    KeyNudge &nudge() { return m_nudge; }
    /// The Space key is down: the left button then pans.
    void holdSpace(bool isHeld);
    bool isSpaceHeld() const { return m_isSpaceHeld; }
    bool hasPanned() const { return m_hasPanned; }

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    struct Press
    {
        PointerAt at;
        QPointF point; // in plane units
        Qt::MouseButton button;
        bool isByFinger = false;
        QPointer<WorkspaceItemBase> item = nullptr;
        bool isOnItem = false;
        bool isOnGrip = false;
        bool wasSelected = false;
        bool isSecond = false; // of a double click
        bool isLong = false;
    };

    void pressItem(const Press &press);
    void beginGesture();
    std::shared_ptr<WorkspaceGesture> gestureOf(const Press &press) const;
    void follow();
    void click(const Press &press);
    void tap(const Press &press);

    WorkspaceBase &m_workspace;
    KeyNudge m_nudge;
    EdgeScroll m_edgeScroll;
    std::optional<Press> m_press;
    std::shared_ptr<WorkspaceGesture> m_gesture;
    std::optional<PinchGesture> m_pinch;
    qsizetype m_fingers = 0;
    PointerAt m_pointer;
    QBasicTimer m_longPress;
    QElapsedTimer m_sinceTap;
    QPointF m_tapped; // in pixels
    bool m_isFollowing = false;
    bool m_isSpaceHeld = false;
    bool m_hasPanned = false; // since Space went down
};

} // namespace tamble::client
