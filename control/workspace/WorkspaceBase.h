#pragma once

#include "base/ControlExport.h"
#include "base/SpokenControl.h"
#include "workspace/PlaneView.h"
#include "workspace/RWorkspaceSelection.h"

#include <QtCore/QHash>
#include <QtCore/QPointF>
#include <QtCore/QPointer>
#include <QtCore/QRectF>
#include <QtCore/QStringList>
#include <QtCore/QUuid>
#include <QtCore/QVariantMap>
#include <QtQml/QQmlListProperty>
#include <QtQuick/QQuickItem>

#include <memory>
#include <optional>
#include <vector>

namespace tamble::client {

class ItemMove;
class RMouseDetection;
class WorkspaceInput;
class WorkspaceItemBase;
class WorkspaceItems;
struct Guide;
struct SnapRules;

/// Canvas: a plane of items seen through a viewport.
///
/// Plane coordinates are in units of `unit` pixels at zoom 1: pixel = (plane - view) * zoom * unit. All points and
/// rectangles are in plane units unless pixels are said; ids are texts without braces. Not-a-number is ignored.
///
/// Keys: the arrows move the selected items, Tab goes from item to item in reading order and then on, Space selects and
/// Enter activates the current item, Ctrl+A selects all, Delete asks for deletion, Esc takes back what is under way or
/// clears the selection; Ctrl with Plus, Minus and 0 zooms, with 1 shows all and with 2 the selected items. From a
/// control on an item Tab goes to the other controls of that item and then on.
class TAMBLE_CLIENT_CONTROL_EXPORT WorkspaceBase : public QQuickItem,
                                                   public SpokenControl,
                                                   private QAccessible::ActivationObserver
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RWorkspaceBase)
    Q_CLASSINFO("DefaultProperty", "content")
    /// The plane, in plane units; 0, 0, 4000 by 3000 by default.
    Q_PROPERTY(QRectF planeRect READ planeRect WRITE setPlaneRect NOTIFY planeRectChanged)
    /// Pixels per plane unit at zoom 1.
    Q_PROPERTY(qreal unit READ unit WRITE setUnit NOTIFY unitChanged)
    /// Zoom factor of the view.
    Q_PROPERTY(qreal zoom READ zoom WRITE setZoom NOTIFY zoomChanged)
    /// `minimumZoom` and `maximumZoom`: bounds of `zoom`; 0.2 and 4 by default.
    Q_PROPERTY(qreal minimumZoom READ minimumZoom WRITE setMinimumZoom NOTIFY minimumZoomChanged)
    Q_PROPERTY(qreal maximumZoom READ maximumZoom WRITE setMaximumZoom NOTIFY maximumZoomChanged)
    /// `viewX` and `viewY`: point of the plane at the top left corner of the view, in plane units. At least 64 pixels
    /// of the plane stay visible, and a plane smaller than the viewport is in its middle.
    Q_PROPERTY(qreal viewX READ viewX WRITE setViewX NOTIFY viewXChanged)
    Q_PROPERTY(qreal viewY READ viewY WRITE setViewY NOTIFY viewYChanged)
    /// Distance of the grid lines in plane units; 8 by default.
    Q_PROPERTY(qreal gridSize READ gridSize WRITE setGridSize NOTIFY gridSizeChanged)
    /// Whether the grid is shown.
    Q_PROPERTY(bool gridVisible MEMBER m_gridVisible NOTIFY gridVisibleChanged)
    /// Whether what is moved snaps: `snapToGrid` to the grid lines, `snapToItems` to the edges of other items.
    Q_PROPERTY(bool snapToGrid MEMBER m_snapToGrid NOTIFY snapToGridChanged)
    Q_PROPERTY(bool snapToItems MEMBER m_snapToItems NOTIFY snapToItemsChanged)
    /// Distance in pixels within which it snaps to items; 6 by default.
    Q_PROPERTY(qreal snapDistance READ snapDistance WRITE setSnapDistance NOTIFY snapDistanceChanged)
    /// Whether items can be selected but not changed.
    Q_PROPERTY(bool readOnly READ readOnly WRITE setReadOnly NOTIFY readOnlyChanged)
    /// Whether the canvas answers to the pointer at all; true by default.
    Q_PROPERTY(bool interactive READ interactive WRITE setInteractive NOTIFY interactiveChanged)
    Q_PROPERTY(tamble::client::RWorkspaceSelection *selection READ selection WRITE setSelection NOTIFY selectionChanged)
    /// The items on the plane, in stacking order.
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
    /// The lines that what is moved snaps to at present: maps with `orientation`, that of the line (Qt.Horizontal or
    /// Qt.Vertical), and its `position` on the other axis.
    Q_PROPERTY(QVariantList guides READ guides NOTIFY guidesChanged)
    /// Whether the pointer is over the canvas.
    Q_PROPERTY(bool pointerInside READ pointerInside NOTIFY pointerInsideChanged)
    /// Place of the pointer, in plane units.
    Q_PROPERTY(QPointF pointerPosition READ pointerPosition NOTIFY pointerPositionChanged)
    /// What lies on the plane; items that are put into the workspace itself are put here.
    Q_PROPERTY(QQmlListProperty<QObject> content READ content)
    /// The item whose children lie on the plane: its origin is the plane's, and `zoom` scales it.
    Q_PROPERTY(QQuickItem *plane READ plane CONSTANT)

public:
    explicit WorkspaceBase(QQuickItem *parent = nullptr);
    ~WorkspaceBase() override;

    QRectF planeRect() const { return m_view.plane(); }
    void setPlaneRect(const QRectF &rect);
    qreal unit() const { return m_view.unit(); }
    void setUnit(qreal unit);
    qreal zoom() const { return m_view.zoom(); }
    void setZoom(qreal zoom);
    qreal minimumZoom() const { return m_view.minimumZoom(); }
    void setMinimumZoom(qreal zoom);
    qreal maximumZoom() const { return m_view.maximumZoom(); }
    void setMaximumZoom(qreal zoom);
    qreal viewX() const { return m_view.view().x(); }
    void setViewX(qreal x);
    qreal viewY() const { return m_view.view().y(); }
    void setViewY(qreal y);
    qreal gridSize() const { return m_gridSize; }
    void setGridSize(qreal size);
    qreal snapDistance() const { return m_snapDistance; }
    void setSnapDistance(qreal pixels);
    bool readOnly() const { return m_readOnly; }
    void setReadOnly(bool readOnly);
    bool interactive() const { return m_interactive; }
    void setInteractive(bool interactive);
    /// Never null: null, and the end of a shared selection, bring back the workspace's own.
    RWorkspaceSelection *selection() const { return m_selection ? m_selection.data() : m_ownSelection; }
    void setSelection(RWorkspaceSelection *selection);

    QList<QObject *> items() const;
    QObject *currentItem() const;
    bool moving() const { return m_move != nullptr; }
    QStringList movingIds() const;
    bool rubberBandActive() const { return m_rubberBand.has_value(); }
    QRectF rubberBandRect() const { return m_rubberBand.value_or(QRectF()); }
    QVariantList guides() const { return m_guides; }
    bool pointerInside() const { return m_pointerInside; }
    QPointF pointerPosition() const { return m_view.toPlane(m_pointer); }
    QQmlListProperty<QObject> content();
    QQuickItem *plane() const { return m_plane; }

    /// The item with an id, given as text with or without braces; null for none.
    Q_INVOKABLE QObject *itemById(const QString &id) const;
    /// The item in front at a point; null for none.
    Q_INVOKABLE QObject *itemAt(const QPointF &point) const;
    /// The items that a rectangle touches or, with `contained`, those that it holds in full; in stacking order.
    Q_INVOKABLE QList<QObject *> itemsIn(const QRectF &rect, bool contained = false) const;
    /// The point of the plane at a place in pixels of the workspace.
    Q_INVOKABLE QPointF mapToPlane(const QPointF &point) const { return m_view.toPlane(point); }
    /// The place in pixels of the workspace where a point of the plane is.
    Q_INVOKABLE QPointF mapFromPlane(const QPointF &point) const { return m_view.toPixels(point); }
    /// Zooms; what is at `anchor`, in pixels of the workspace, stays there.
    Q_INVOKABLE void zoomTo(qreal factor, const QPointF &anchor);
    /// Shows all items, or the plane when there are none.
    Q_INVOKABLE void zoomToFit();
    /// Shows the selected items of this workspace.
    Q_INVOKABLE void zoomToSelection();
    /// Moves the view until it shows a rectangle, as little as possible.
    Q_INVOKABLE void ensureVisible(const QRectF &rect);
    /// The point of the grid that is nearest to a point; the point itself without `snapToGrid`.
    Q_INVOKABLE QPointF snapped(const QPointF &point) const;
    /// Puts items to places, from id text to point, within the plane as one set; also while `readOnly`. Tells no
    /// `itemsMoved`: it is what undoing does.
    Q_INVOKABLE void moveItems(const QVariantMap &positions);
    /// Likewise with rectangles.
    Q_INVOKABLE void resizeItems(const QVariantMap &geometries);
    /// Moves the selected items, as the arrow keys do.
    Q_INVOKABLE void nudge(qreal dx, qreal dy);
    /// Moves the selected items to an edge or the centre of the rectangle around them: Qt.AlignLeft, AlignRight,
    /// AlignTop, AlignBottom, AlignHCenter or AlignVCenter.
    Q_INVOKABLE void align(int edge);
    /// Gives three or more selected items equal gaps, in the direction of Qt.Horizontal or Qt.Vertical.
    Q_INVOKABLE void distribute(int orientation);
    /// Takes back the gesture under way.
    Q_INVOKABLE void cancelGesture();

    /// Where all items are.
    QHash<QUuid, QPointF> positions() const;
    QHash<QUuid, QRectF> geometries() const;

    QAccessible::Role spokenRole() const override { return QAccessible::LayeredPane; }
    QString spokenName() const override;
    /// Items in reading order, the rest after them.
    QList<QQuickItem *> spokenOrder(const QList<QQuickItem *> &children) const override;

    // What gestures ask, and what they show and tell.

    const PlaneView &view() const { return m_view; }
    /// Moves the view by pixels.
    void pan(const QPointF &pixels);
    /// How what is moved snaps; not at all while that is suspended.
    SnapRules snapRules(bool isSuspended) const;
    /// The items in an area that are not being moved.
    std::vector<QRectF> restingRectsIn(const QRectF &area) const;
    QList<WorkspaceItemBase *> selectableIn(const QRectF &area, bool contained) const;
    /// Those selected items of this workspace that the user can move; none while it is read-only.
    QList<WorkspaceItemBase *> selectedToMove() const;
    /// The selected item whose bottom right corner, by which its size is changed, is within `pixels` of a point.
    WorkspaceItemBase *itemWithGripAt(const QPointF &point, double pixels) const;
    void setCurrentItem(WorkspaceItemBase *item);
    /// The move under way; null when it is over.
    void setMove(ItemMove *move);
    void showGuides(const std::vector<Guide> &guides);
    void showRubberBand(const std::optional<QRectF> &band);
    void tellMoving(const ItemMove &move);
    void tellMoved(const QHash<QUuid, QPointF> &before, const QHash<QUuid, QPointF> &after, const QString &cause);
    void tellResized(const QHash<QUuid, QRectF> &before, const QHash<QUuid, QRectF> &after);

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

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void updatePolish() override;
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
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    friend class RWorkspaceSelection;
    friend class WorkspaceItemBase;

    template <typename Change>
    void changeView(Change change);
    void placePlane();
    void updateInput();
    void tellSheet();
    void addItem(WorkspaceItemBase &item);
    void removeItem(WorkspaceItemBase &item);
    void placeItem(WorkspaceItemBase &item);
    void placeAllItems();
    void tellItemsLater();
    void selectionGoes(const RWorkspaceSelection *selection);
    void leaveSelection();
    QList<WorkspaceItemBase *> selectedHere() const;
    void fit(const QRectF &rect, double mostZoom);
    void fit(const QList<WorkspaceItemBase *> &items);
    void placeItems(const QVariantMap &geometries, bool resizes);
    void endGestures();
    void arrange(const QList<WorkspaceItemBase *> &items, const std::vector<QPointF> &corners, const QString &cause);
    void setPointer(const QPointF &pixel);
    void updatePointerInside();
    void setHovered(bool isHovered);
    void updateHovered();
    void updateKeyFocus();
    void followFocus();
    void setTabFences(bool areFences);
    bool handleKey(const QKeyEvent &event);
    bool handleControlKey(int key);
    bool moveByArrow(const QKeyEvent &event);
    void selectCurrent(bool toggles);
    bool moveCurrent(bool isForward);
    void askForMenu();
    void accessibilityActiveChanged(bool active) override;
    void speak();

    PlaneView m_view;
    qreal m_gridSize = 8.0;
    qreal m_snapDistance = 6.0;
    bool m_gridVisible = true;
    bool m_snapToGrid = true;
    bool m_snapToItems = true;
    bool m_readOnly = false;
    bool m_interactive = true;
    bool m_pointerInside = false;
    bool m_isHovered = false; // with nothing on the plane that is hovered by itself
    bool m_willTellItems = false;
    QPointF m_pointer; // in pixels
    std::optional<QRectF> m_rubberBand;
    QVariantList m_guides;
    ItemMove *m_move = nullptr;             // of a gesture
    RMouseDetection *m_detection = nullptr; // a child; controls on the plane keep hover events to themselves
    QQuickItem *m_plane = nullptr;          // a child
    QPointer<QQuickItem> m_focusInside;     // a control on the plane that has the keyboard
    QMetaObject::Connection m_focusWatch;
    WorkspaceItemBase *m_currentItem = nullptr;
    WorkspaceItemBase *m_hoveredItem = nullptr;
    RWorkspaceSelection *m_ownSelection = nullptr; // a child
    QPointer<RWorkspaceSelection> m_selection;
    std::unique_ptr<WorkspaceItems> m_items;
    std::unique_ptr<WorkspaceInput> m_input;
};

} // namespace tamble::client
