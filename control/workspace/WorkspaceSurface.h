#pragma once

#include "base/ControlExport.h"
#include "workspace/WorkspaceView.h"

#include <QtCore/QVariant>

namespace tamble::client {

class WorkspaceInput;

/// Takes what the pointer does to a workspace, and hands it to what makes gestures of it.
class TAMBLE_CLIENT_CONTROL_EXPORT WorkspaceSurface : public tamble::client::WorkspaceView
{
    Q_OBJECT
    QML_ANONYMOUS
    /// Whether the canvas answers to the pointer at all; true by default.
    Q_PROPERTY(bool interactive READ interactive WRITE setInteractive NOTIFY interactiveChanged)

public:
    explicit WorkspaceSurface(QQuickItem *parent = nullptr);

    bool interactive() const { return m_interactive; }
    void setInteractive(bool interactive);

    /// Takes back the gesture under way.
    Q_INVOKABLE void cancelGesture();

    /// The Space key is down: the left button then pans, also where a control on the plane would take it.
    void holdSpace(bool isHeld);

Q_SIGNALS:
    void interactiveChanged();
    /// Something was dropped at this point of the plane.
    void dropped(const QPointF &point, const QVariant &data);

protected:
    virtual WorkspaceInput &input() = 0;
    /// Whether the pointer is here, with nothing on the plane that is hovered by itself.
    bool isHovered() const { return m_isHovered; }
    /// The pointer has come, moved or gone.
    virtual void hoverChange() {}

    void viewChange() override;
    bool event(QEvent *event) override;
    bool childMouseEventFilter(QQuickItem *item, QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void touchEvent(QTouchEvent *event) override;
    void touchUngrabEvent() override;
    void wheelEvent(QWheelEvent *event) override;
    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverMoveEvent(QHoverEvent *event) override;
    void hoverLeaveEvent(QHoverEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void takePointer();
    void setHovered(bool isHovered);

    bool m_interactive = true;
    bool m_isHovered = false;
};

} // namespace tamble::client
