#pragma once

#include "base/ControlExport.h"
#include "workspace/WorkspaceBase.h"

#include <QtCore/QPointF>
#include <QtCore/QPointer>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtCore/QUuid>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Declared only: nothing follows from its properties yet.
///
/// Item on the plane of a workspace. `position` and `size` are in plane units.
class TAMBLE_CLIENT_CONTROL_EXPORT WorkspaceItemBase : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RWorkspaceItemBase)
    /// Identity of the item; a new random one by default.
    Q_PROPERTY(QUuid itemId MEMBER m_itemId NOTIFY itemIdChanged)
    /// Top left corner, in plane units.
    Q_PROPERTY(QPointF position MEMBER m_position NOTIFY positionChanged)
    /// Width and height, in plane units.
    Q_PROPERTY(QSizeF size MEMBER m_size NOTIFY sizeChanged)
    /// Whether the item is in its workspace's selection.
    Q_PROPERTY(bool selected READ selected NOTIFY selectedChanged)
    /// Whether the user can select it.
    Q_PROPERTY(bool selectable MEMBER m_selectable NOTIFY selectableChanged)
    /// Whether the user can move it.
    Q_PROPERTY(bool movable MEMBER m_movable NOTIFY movableChanged)
    /// Whether the user can change its size.
    Q_PROPERTY(bool resizable MEMBER m_resizable NOTIFY resizableChanged)
    /// Whether it can be neither moved nor resized nor deleted at present.
    Q_PROPERTY(bool locked MEMBER m_locked NOTIFY lockedChanged)
    /// Whether it is being moved.
    Q_PROPERTY(bool moving READ moving NOTIFY movingChanged)
    /// The workspace that the item is on; null for none.
    Q_PROPERTY(tamble::client::WorkspaceBase *workspace READ workspace NOTIFY workspaceChanged)
    /// Smallest size, in plane units.
    Q_PROPERTY(QSizeF minimumSize MEMBER m_minimumSize NOTIFY minimumSizeChanged)

public:
    explicit WorkspaceItemBase(QQuickItem *parent = nullptr);

    bool selected() const { return m_selected; }
    bool moving() const { return m_moving; }
    WorkspaceBase *workspace() const { return m_workspace; }

Q_SIGNALS:
    void itemIdChanged();
    void positionChanged();
    void sizeChanged();
    void selectedChanged();
    void selectableChanged();
    void movableChanged();
    void resizableChanged();
    void lockedChanged();
    void movingChanged();
    void workspaceChanged();
    void minimumSizeChanged();
    /// The item was clicked.
    void clicked();
    /// The item was double-clicked.
    void doubleClicked();
    /// The user has moved the item; both places in plane units.
    void moved(const QPointF &from, const QPointF &to);
    /// The user has changed its geometry; both rectangles in plane units.
    void resized(const QRectF &from, const QRectF &to);

private:
    QUuid m_itemId = QUuid::createUuid();
    QPointF m_position;
    QSizeF m_size;
    bool m_selected = false;
    bool m_selectable = true;
    bool m_movable = true;
    bool m_resizable = false;
    bool m_locked = false;
    bool m_moving = false;
    QPointer<WorkspaceBase> m_workspace;
    QSizeF m_minimumSize = {32.0, 32.0};
};

} // namespace tamble::client
