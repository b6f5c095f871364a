#pragma once

#include "base/ControlExport.h"
#include "base/SpokenControl.h"
#include "workspace/WorkspaceBase.h"

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtCore/QUuid>
#include <QtQml/QQmlComponent>
#include <QtQuick/QQuickItem>

#include <memory>

namespace tamble::client {

class ItemContent;

/// Item on the plane of a workspace. `position` and `size` are in plane units.
///
/// A workspace has thousands of them, so one that is out of view is not drawn, and what a derived item shows is best
/// made when it first comes into view.
class TAMBLE_CLIENT_CONTROL_EXPORT WorkspaceItemBase : public QQuickItem, public SpokenControl
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RWorkspaceItemBase)
    Q_PROPERTY(QUuid itemId READ itemId WRITE setItemId NOTIFY itemIdChanged)
    Q_PROPERTY(QPointF position READ planePosition WRITE setPlanePosition NOTIFY positionChanged)
    Q_PROPERTY(QSizeF size READ planeSize WRITE setPlaneSize RESET resetPlaneSize NOTIFY sizeChanged)
    /// Whether the item is in its workspace's selection.
    Q_PROPERTY(bool selected READ selected NOTIFY selectedChanged)
    /// Whether the user can select it; true by default.
    Q_PROPERTY(bool selectable MEMBER m_selectable NOTIFY selectableChanged)
    /// Whether the user can move it; true by default.
    Q_PROPERTY(bool movable MEMBER m_movable NOTIFY movableChanged)
    /// Whether the user can change its size, by its bottom right corner while it is selected; false by default.
    Q_PROPERTY(bool resizable MEMBER m_resizable NOTIFY resizableChanged)
    Q_PROPERTY(bool locked READ locked WRITE setLocked NOTIFY lockedChanged)
    /// Whether it is being moved.
    Q_PROPERTY(bool moving READ moving NOTIFY movingChanged)
    /// The workspace that the item is on, its nearest ancestor of that kind; null for none.
    Q_PROPERTY(tamble::client::WorkspaceBase *workspace READ workspace NOTIFY workspaceChanged)
    Q_PROPERTY(QSizeF minimumSize READ minimumSize WRITE setMinimumSize NOTIFY minimumSizeChanged)
    /// Whether the pointer is over the item, and no other item of the plane in front of it. A control inside that shows
    /// a hover of its own keeps it from the item.
    Q_PROPERTY(bool hovered READ hovered NOTIFY hoveredChanged)
    /// Whether keys act on the item: it is the current one of a workspace that has the keyboard.
    Q_PROPERTY(bool keyFocus READ keyFocus NOTIFY keyFocusChanged)
    /// Whether the item meets the viewport or a narrow margin around it; false without a workspace.
    Q_PROPERTY(bool inView READ inView NOTIFY inViewChanged)
    /// Whether the zoom leaves room for more than an icon and a title: false below 0.4.
    Q_PROPERTY(bool detailed READ detailed NOTIFY detailedChanged)
    Q_PROPERTY(QQuickItem *contentItem READ contentItem WRITE setContentItem NOTIFY contentItemChanged)
    Q_PROPERTY(
        QQmlComponent *contentComponent READ contentComponent WRITE setContentComponent NOTIFY contentComponentChanged)

public:
    explicit WorkspaceItemBase(QQuickItem *parent = nullptr);
    ~WorkspaceItemBase() override;

    /// Identity of the item; a new random one by default. One that another item of the workspace has is refused.
    QUuid itemId() const;
    void setItemId(const QUuid &id);
    /// Top left corner, in plane units. While the user moves the item, what a page sets waits: it counts if the move is
    /// taken back.
    QPointF planePosition() const { return m_position; }
    void setPlanePosition(const QPointF &position);
    /// Width and height, in plane units. When set they win over the content, and neither is less than in `minimumSize`.
    QSizeF planeSize() const;
    void setPlaneSize(const QSizeF &size);
    void resetPlaneSize();
    QRectF planeRect() const { return QRectF(m_position, planeSize()); }
    /// Whether the item can be selected but neither moved nor resized at present; false by default.
    bool locked() const { return m_locked; }
    void setLocked(bool locked);
    /// Smallest size that can be set, in plane units; 32 by 32 by default.
    QSizeF minimumSize() const { return m_minimumSize; }
    void setMinimumSize(const QSizeF &size);
    /// Where a page's content is: a child that is hidden while the item is out of view or not `detailed`, without a
    /// change of the item's own `visible`; null by default. An item is not its own content.
    QQuickItem *contentItem() const;
    void setContentItem(QQuickItem *item);
    /// Content that is made below `contentItem`, or else below the item, when it is first to be seen; null by default.
    QQmlComponent *contentComponent() const;
    void setContentComponent(QQmlComponent *component);

    bool selected() const { return m_selected; }
    bool moving() const { return m_moving; }
    bool hovered() const { return m_hovered; }
    bool keyFocus() const { return m_keyFocus; }
    bool inView() const { return m_inView; }
    bool detailed() const { return m_detailed; }
    WorkspaceBase *workspace() const { return m_workspace; }
    bool isSelectable() const { return m_selectable; }
    /// Whether its own `visible` is true, whatever becomes of the workspace.
    bool isShownByItself() const;
    /// Whether the user can move it at present, for all that the item knows.
    bool canBeMoved() const { return m_movable && !m_locked; }
    bool canBeResized() const { return m_resizable && !m_locked; }

    QAccessible::Role spokenRole() const override { return QAccessible::Button; }
    QString spokenName() const override;
    QString spokenDescription(const QString &given) const override;
    void addSpokenStates(QAccessible::State &state) const override;
    bool pressBySpeech() override;

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
    void hoveredChanged();
    void keyFocusChanged();
    void inViewChanged();
    void detailedChanged();
    void contentItemChanged();
    void contentComponentChanged();
    /// The item was clicked.
    void clicked();
    /// The item was double-clicked.
    void doubleClicked();
    /// The user has moved the item; both places in plane units.
    void moved(const QPointF &from, const QPointF &to);
    /// The user has changed its geometry; both rectangles in plane units.
    void resized(const QRectF &from, const QRectF &to);

protected:
    /// One of `selected`, `hovered`, `keyFocus`, `moving`, `locked`, `inView` and `detailed` has changed; for what a
    /// derived item makes of itself. Called before the signal.
    virtual void lookChange() {}
    /// `size` has changed; likewise called before the signal.
    virtual void sizeChange() {}

    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    friend class ItemMove;
    friend class RWorkspaceSelection;
    friend class WorkspaceBase;
    friend class WorkspaceFocus;
    friend class WorkspaceItems;

    using Change = void (WorkspaceItemBase::*)();

    /// Whether that is new.
    bool setKeyFocus(bool has)
    {
        return setState(&WorkspaceItemBase::m_keyFocus, has, &WorkspaceItemBase::keyFocusChanged);
    }
    bool setState(bool WorkspaceItemBase::*state, bool on, Change changed);
    void findWorkspace();
    void leaveWorkspace();
    void setUnit(qreal unit);
    void setInView(bool inView, bool detailed);
    void applyPosition();
    void applySize();
    ItemContent &content();
    void updateContent();
    void showPosition(const QPointF &position);
    void endMove();
    void speak();

    // What a step of a move touches comes first, in one line of the cache.
    QPointF m_position;
    qreal m_unit = 1.0;                   // of the workspace
    WorkspaceBase *m_workspace = nullptr; // unregisters all when it goes
    quint32 m_slot = 0;                   // of the workspace's register
    bool m_isPlaced = false;              // and the workspace has not yet looked where
    bool m_isPlacing = false;             // Qt's position follows `position`, not the other way round
    bool m_moving = false;
    bool m_selected = false;
    bool m_selectable = true;
    bool m_movable = true;
    bool m_resizable = false;
    bool m_locked = false;
    bool m_hovered = false;
    bool m_keyFocus = false;
    bool m_inView = false;
    bool m_detailed = true;
    int m_rank = -1; // where the item was among its siblings when last looked up
    QSizeF m_size;   // what was set, or invalid
    QSizeF m_minimumSize = {32.0, 32.0};
    mutable QUuid m_itemId; // null until somebody asks: most items are never asked
    // By pointer, as most items have none: what 2,000 of them cost to make goes with their size.
    std::unique_ptr<QPointF> m_waitingPosition; // set by the page during a move
    std::unique_ptr<ItemContent> m_content;
};

} // namespace tamble::client
