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

/// Item on the plane of a workspace. `position` and `size` are in plane units.
class TAMBLE_CLIENT_CONTROL_EXPORT WorkspaceItemBase : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RWorkspaceItemBase)
    Q_PROPERTY(QUuid itemId MEMBER m_itemId NOTIFY itemIdChanged)
    Q_PROPERTY(QPointF position MEMBER m_position NOTIFY positionChanged)
    Q_PROPERTY(QSizeF size MEMBER m_size NOTIFY sizeChanged)
    Q_PROPERTY(bool selected READ selected NOTIFY selectedChanged)
    Q_PROPERTY(bool selectable MEMBER m_selectable NOTIFY selectableChanged)
    Q_PROPERTY(bool movable MEMBER m_movable NOTIFY movableChanged)
    Q_PROPERTY(bool resizable MEMBER m_resizable NOTIFY resizableChanged)
    Q_PROPERTY(bool locked MEMBER m_locked NOTIFY lockedChanged)
    Q_PROPERTY(bool moving READ moving NOTIFY movingChanged)
    Q_PROPERTY(tamble::client::WorkspaceBase *workspace READ workspace NOTIFY workspaceChanged)
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
    void clicked();
    void doubleClicked();
    void moved(const QPointF &from, const QPointF &to);
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
