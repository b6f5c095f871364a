#pragma once

#include "base/ControlExport.h"
#include "base/SpokenControl.h"
#include "workspace/RWorkspaceSelection.h"
#include "workspace/WorkspaceSurface.h"

#include <QtCore/QHash>
#include <QtCore/QPointF>
#include <QtCore/QPointer>
#include <QtCore/QRectF>
#include <QtCore/QStringList>
#include <QtCore/QUuid>
#include <QtCore/QVariantMap>
#include <QtQml/QQmlListProperty>

#include <memory>
#include <optional>
#include <vector>

namespace tamble::client {

class ItemMove;
class WorkspaceFocus;
class WorkspaceItemBase;
class WorkspaceItems;
class WorkspaceKeys;
struct Guide;

/// Canvas: a plane of items seen through a viewport. Ids are texts without braces.
///
/// Keys: the arrows move the selected items, Tab goes from item to item in reading order and then on, Space selects and
/// Enter activates the current item, Ctrl+A selects all, Delete asks for deletion, Esc takes back what is under way or
/// clears the selection; Ctrl with Plus, Minus and 0 zooms, with 1 shows all and with 2 the selected items. From a
/// control on an item Tab goes to the other controls of that item and then on.
class TAMBLE_CLIENT_CONTROL_EXPORT WorkspaceBase : public tamble::client::WorkspaceSurface,
                                                   public SpokenControl,
                                                   private QAccessible::ActivationObserver
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RWorkspaceBase)
    Q_CLASSINFO("DefaultProperty", "content")
    /// Whether items can be selected but not changed.
    Q_PROPERTY(bool readOnly READ readOnly WRITE setReadOnly NOTIFY readOnlyChanged)
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
    /// What lies on the plane; items that are put into the workspace itself are put here.
    Q_PROPERTY(QQmlListProperty<QObject> content READ content)

public:
    explicit WorkspaceBase(QQuickItem *parent = nullptr);
    ~WorkspaceBase() override;

    bool readOnly() const { return m_readOnly; }
    void setReadOnly(bool readOnly);
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
    QQmlListProperty<QObject> content();

    /// The item with an id, given as text with or without braces; null for none.
    Q_INVOKABLE QObject *itemById(const QString &id) const;
    /// The item in front at a point; null for none.
    Q_INVOKABLE QObject *itemAt(const QPointF &point) const;
    /// The items that a rectangle touches or, with `contained`, those that it holds in full; in stacking order.
    Q_INVOKABLE QList<QObject *> itemsIn(const QRectF &rect, bool contained = false) const;
    /// Shows all items, or the plane when there are none.
    Q_INVOKABLE void zoomToFit();
    /// Shows the selected items of this workspace.
    Q_INVOKABLE void zoomToSelection();
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

    /// Where all items are.
    QHash<QUuid, QPointF> positions() const;
    QHash<QUuid, QRectF> geometries() const;

    QAccessible::Role spokenRole() const override { return QAccessible::LayeredPane; }
    QString spokenName() const override;
    /// Items in reading order, the rest after them.
    QList<QQuickItem *> spokenOrder(const QList<QQuickItem *> &children) const override;

    // What gestures ask, and what they show and tell.

    const WorkspaceItems &placed() const { return *m_items; }
    /// The selected items of this workspace.
    QList<WorkspaceItemBase *> selectedHere() const;
    /// Those of them that the user can move; none while it is read-only.
    QList<WorkspaceItemBase *> selectedToMove() const;
    /// The selected item whose bottom right corner, by which its size is changed, is within `pixels` of a point.
    WorkspaceItemBase *itemWithGripAt(const QPointF &point, double pixels) const;
    void setCurrentItem(WorkspaceItemBase *item);
    /// What the keys have moved so far is done.
    void finishNudge();
    /// Likewise, and takes back what the pointer still holds; false when the workspace has gone over it.
    bool endGestures();
    /// The move under way; null when it is over.
    void setMove(ItemMove *move);
    void showGuides(const std::vector<Guide> &guides);
    void showRubberBand(const std::optional<QRectF> &band);

Q_SIGNALS:
    void readOnlyChanged();
    void selectionChanged();
    void itemsChanged();
    void currentItemChanged();
    void movingChanged();
    void movingIdsChanged();
    void rubberBandActiveChanged();
    void rubberBandRectChanged();
    void guidesChanged();
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

protected:
    void unitChange() override;
    void hoverChange() override;
    WorkspaceInput &input() override { return *m_input; }
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void updatePolish() override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    friend class RWorkspaceSelection;
    friend class WorkspaceItemBase;

    void tellSheet();
    void addItem(WorkspaceItemBase &item);
    void removeItem(WorkspaceItemBase &item);
    void placeItem(WorkspaceItemBase &item);
    void placeAllItems();
    void tellItemsLater();
    void selectionGoes(const RWorkspaceSelection *selection);
    void leaveSelection();
    void fitItems(const QList<WorkspaceItemBase *> &items);
    void accessibilityActiveChanged(bool active) override;
    void speak();

    bool m_readOnly = false;
    bool m_willTellItems = false;
    std::optional<QRectF> m_rubberBand;
    QVariantList m_guides;
    ItemMove *m_move = nullptr; // of a gesture
    WorkspaceItemBase *m_hoveredItem = nullptr;
    RWorkspaceSelection *m_ownSelection = nullptr; // a child
    QPointer<RWorkspaceSelection> m_selection;
    std::unique_ptr<WorkspaceItems> m_items;
    std::unique_ptr<WorkspaceInput> m_input;
    std::unique_ptr<WorkspaceFocus> m_focus;
    std::unique_ptr<WorkspaceKeys> m_keys;
};

} // namespace tamble::client
