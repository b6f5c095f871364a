#pragma once

#include "base/ControlExport.h"
#include "workspace/RWorkspaceSelection.h"

#include <QtCore/QHash>
#include <QtCore/QPointF>
#include <QtCore/QPointer>
#include <QtCore/QRectF>
#include <QtCore/QStringList>
#include <QtCore/QUuid>
#include <QtCore/QVariantMap>
#include <QtQuick/QQuickItem>

namespace tamble::client {

/// Declared only: nothing follows from its properties yet.
///
/// Canvas: a plane of items seen through a viewport.
///
/// Plane coordinates are in units of `unit` pixels at zoom 1: pixel = (plane - view) * zoom * unit. `snapDistance` is
/// in pixels.
class TAMBLE_CLIENT_CONTROL_EXPORT WorkspaceBase : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RWorkspaceBase)
    /// The plane, in plane units.
    Q_PROPERTY(QRectF planeRect MEMBER m_planeRect NOTIFY planeRectChanged)
    /// Pixels per plane unit at zoom 1.
    Q_PROPERTY(qreal unit MEMBER m_unit NOTIFY unitChanged)
    /// Zoom factor of the view.
    Q_PROPERTY(qreal zoom MEMBER m_zoom NOTIFY zoomChanged)
    /// `minimumZoom` and `maximumZoom`: bounds of `zoom`.
    Q_PROPERTY(qreal minimumZoom MEMBER m_minimumZoom NOTIFY minimumZoomChanged)
    Q_PROPERTY(qreal maximumZoom MEMBER m_maximumZoom NOTIFY maximumZoomChanged)
    /// `viewX` and `viewY`: point of the plane at the top left corner of the view, in plane units.
    Q_PROPERTY(qreal viewX MEMBER m_viewX NOTIFY viewXChanged)
    Q_PROPERTY(qreal viewY MEMBER m_viewY NOTIFY viewYChanged)
    /// Distance of the grid lines in plane units.
    Q_PROPERTY(qreal gridSize MEMBER m_gridSize NOTIFY gridSizeChanged)
    /// Whether the grid is shown.
    Q_PROPERTY(bool gridVisible MEMBER m_gridVisible NOTIFY gridVisibleChanged)
    /// Whether what is moved snaps: `snapToGrid` to the grid lines, `snapToItems` to the edges of other items.
    Q_PROPERTY(bool snapToGrid MEMBER m_snapToGrid NOTIFY snapToGridChanged)
    Q_PROPERTY(bool snapToItems MEMBER m_snapToItems NOTIFY snapToItemsChanged)
    /// Distance in pixels within which it snaps.
    Q_PROPERTY(qreal snapDistance MEMBER m_snapDistance NOTIFY snapDistanceChanged)
    /// Whether items can be selected but not changed.
    Q_PROPERTY(bool readOnly MEMBER m_readOnly NOTIFY readOnlyChanged)
    /// Whether the user can move the view.
    Q_PROPERTY(bool interactive MEMBER m_interactive NOTIFY interactiveChanged)
    Q_PROPERTY(tamble::client::RWorkspaceSelection *selection READ selection WRITE setSelection NOTIFY selectionChanged)
    /// The items on the plane.
    Q_PROPERTY(QList<QObject *> items READ items NOTIFY itemsChanged)
    /// The item that keys act on; null for none.
    Q_PROPERTY(QObject *currentItem READ currentItem NOTIFY currentItemChanged)
    /// Whether items are being moved.
    Q_PROPERTY(bool moving READ moving NOTIFY movingChanged)
    /// Ids of the items that are being moved.
    Q_PROPERTY(QStringList movingIds READ movingIds NOTIFY movingIdsChanged)
    /// Whether a rubber band is being drawn.
    Q_PROPERTY(bool rubberBandActive READ rubberBandActive NOTIFY rubberBandActiveChanged)
    /// The rubber band, in plane units.
    Q_PROPERTY(QRectF rubberBandRect READ rubberBandRect NOTIFY rubberBandRectChanged)
    /// The lines that what is moved snaps to at present.
    Q_PROPERTY(QVariantList guides READ guides NOTIFY guidesChanged)
    /// Whether the pointer is over the canvas.
    Q_PROPERTY(bool pointerInside READ pointerInside NOTIFY pointerInsideChanged)
    /// Place of the pointer, in plane units.
    Q_PROPERTY(QPointF pointerPosition READ pointerPosition NOTIFY pointerPositionChanged)

public:
    explicit WorkspaceBase(QQuickItem *parent = nullptr);

    /// Never null: null, and the end of a shared selection, bring back the workspace's own.
    RWorkspaceSelection *selection() const { return m_selection ? m_selection.data() : m_ownSelection; }
    void setSelection(RWorkspaceSelection *selection);

    QList<QObject *> items() const { return m_items; }
    QObject *currentItem() const { return m_currentItem; }
    bool moving() const { return m_moving; }
    QStringList movingIds() const { return m_movingIds; }
    bool rubberBandActive() const { return m_rubberBandActive; }
    QRectF rubberBandRect() const { return m_rubberBandRect; }
    QVariantList guides() const { return m_guides; }
    bool pointerInside() const { return m_pointerInside; }
    QPointF pointerPosition() const { return m_pointerPosition; }

Q_SIGNALS:
    void planeRectChanged();
    void unitChanged();
    void zoomChanged();
    void minimumZoomChanged();
    void maximumZoomChanged();
    void viewXChanged();
    void viewYChanged();
    void gridSizeChanged();
    void gridVisibleChanged();
    void snapToGridChanged();
    void snapToItemsChanged();
    void snapDistanceChanged();
    void readOnlyChanged();
    void interactiveChanged();
    void selectionChanged();
    void itemsChanged();
    void currentItemChanged();
    void movingChanged();
    void movingIdsChanged();
    void rubberBandActiveChanged();
    void rubberBandRectChanged();
    void guidesChanged();
    void pointerInsideChanged();
    void pointerPositionChanged();
    /// A move of these items begins.
    void moveStarted(const QStringList &ids);
    /// Each step of a move; from id text without braces to point.
    void itemsMoving(const QVariantMap &positions);
    /// Esc has taken a move back.
    void moveCanceled();
    /// Exactly once per finished gesture that changed something; `cause` is "drag", "keyboard", "align" or
    /// "distribute".
    void itemsMoved(const QVariantMap &oldPositions, const QVariantMap &newPositions, const QString &cause);
    /// Native twin of `itemsMoved`, emitted just before it.
    void positionsCommitted(const QHash<QUuid, QPointF> &before, const QHash<QUuid, QPointF> &after);
    /// A gesture that changed sizes is over; both maps go from id text to rectangle, in plane units.
    void itemsResized(const QVariantMap &oldGeometries, const QVariantMap &newGeometries);
    /// Native twin of `itemsResized`, emitted just before it.
    void geometriesCommitted(const QHash<QUuid, QRectF> &before, const QHash<QUuid, QRectF> &after);
    /// An item was added.
    void itemAdded(const QString &id);
    /// An item was removed.
    void itemRemoved(const QString &id);
    /// An item was double-clicked, or Enter pressed on it.
    void itemActivated(const QString &id);
    /// The user asks for these items to be deleted.
    void deleteRequested(const QStringList &ids);
    /// The plane was clicked where no item is, in plane units.
    void backgroundClicked(const QPointF &point);
    /// The plane was double-clicked where no item is, in plane units.
    void backgroundDoubleClicked(const QPointF &point);
    /// `id` is empty for the background.
    void contextMenuRequested(const QPointF &point, const QString &id);
    /// Something was dropped at this point of the plane.
    void dropped(const QPointF &point, const QVariant &data);

private:
    QRectF m_planeRect = {0.0, 0.0, 4000.0, 3000.0};
    qreal m_unit = 1.0;
    qreal m_zoom = 1.0;
    qreal m_minimumZoom = 0.2;
    qreal m_maximumZoom = 4.0;
    qreal m_viewX = 0.0;
    qreal m_viewY = 0.0;
    qreal m_gridSize = 8.0;
    bool m_gridVisible = true;
    bool m_snapToGrid = true;
    bool m_snapToItems = true;
    qreal m_snapDistance = 6.0;
    bool m_readOnly = false;
    bool m_interactive = true;
    RWorkspaceSelection *m_ownSelection = nullptr;
    QPointer<RWorkspaceSelection> m_selection;
    QList<QObject *> m_items;
    QPointer<QObject> m_currentItem;
    bool m_moving = false;
    QStringList m_movingIds;
    bool m_rubberBandActive = false;
    QRectF m_rubberBandRect;
    QVariantList m_guides;
    bool m_pointerInside = false;
    QPointF m_pointerPosition;
};

} // namespace tamble::client
