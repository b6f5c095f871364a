#pragma once

#include "base/ControlExport.h"
#include "dragging/DragSource.h"

#include <QtCore/QPointer>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/private/qquickdrag_p.h>

namespace tamble::client {

/// Content that can be dragged to a DropArea as a picture; it stays where it is itself. The mouse begins a drag once it
/// has left the place of the press, a finger after a long press. A drop that no area takes sends the picture back.
///
/// Keys: Esc takes a drag back.
class TAMBLE_CLIENT_CONTROL_EXPORT RDraggableItemBase : public tamble::client::DragSource
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RDraggableItemBase)
    /// What the area that is dropped on is to know: its `drop.source` is this item.
    Q_PROPERTY(QVariant dragData MEMBER m_dragData NOTIFY dragDataChanged FINAL)
    /// Areas that have keys take a drag with one of these; "tamble" by default.
    Q_PROPERTY(QStringList dragKeys MEMBER m_dragKeys NOTIFY dragKeysChanged FINAL)
    Q_PROPERTY(bool dragEnabled READ isDragEnabled WRITE setDragEnabled NOTIFY dragEnabledChanged FINAL)
    /// The part of the content that begins a drag; null, the default, for all of it.
    Q_PROPERTY(QQuickItem *handle READ handle WRITE setHandle NOTIFY handleChanged FINAL)
    /// Directions in which the picture moves; both by default.
    Q_PROPERTY(QQuickDrag::Axis axis MEMBER m_axis NOTIFY axisChanged FINAL)
    /// Opacity of the picture, 0 to 1; 0.6 by default.
    Q_PROPERTY(qreal ghostOpacity MEMBER m_ghostOpacity NOTIFY ghostOpacityChanged FINAL)
    /// What an area may do with what is dropped; Qt.MoveAction by default.
    Q_PROPERTY(Qt::DropActions supportedActions MEMBER m_supportedActions NOTIFY supportedActionsChanged FINAL)

public:
    explicit RDraggableItemBase(QQuickItem *parent = nullptr);
    ~RDraggableItemBase() override;

    /// Whether drags begin; true by default. One that is under way goes on.
    bool isDragEnabled() const { return m_dragEnabled; }
    void setDragEnabled(bool enabled);
    QQuickItem *handle() const { return m_handle; }
    void setHandle(QQuickItem *handle);

Q_SIGNALS:
    void dragDataChanged();
    void dragKeysChanged();
    void dragEnabledChanged();
    void handleChanged();
    void axisChanged();
    void ghostOpacityChanged();
    void supportedActionsChanged();
    /// A drag has begun.
    void dragStarted();
    /// An area has taken the drop, and what it does with it.
    void dropped(QQuickItem *target, int action);
    /// The drag was taken back, or dropped where nobody takes it.
    void canceled();

protected:
    bool beginsAt(const QPointF &point) const override;
    QQuickItem *pictured() override { return this; }
    qreal pictureOpacity() const override { return m_ghostOpacity; }
    void dragBegins() override;
    QPointF dragMoves(const QPointF &way) override;
    bool dragEnds() override;
    void dragIsCanceled() override;

private:
    QPointer<QQuickDragAttached> m_drag; ///< Of the picture; what areas see.
    QPointer<QQuickItem> m_handle;
    QVariant m_dragData;
    QStringList m_dragKeys{QStringLiteral("tamble")};
    Qt::DropActions m_supportedActions = Qt::MoveAction;
    QQuickDrag::Axis m_axis = QQuickDrag::XAndYAxis;
    qreal m_ghostOpacity = 0.6;
    bool m_dragEnabled = true;
};

} // namespace tamble::client
