#pragma once

#include "base/ControlExport.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QRectF>
#include <QtCore/QStringList>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

class WorkspaceBase;
class WorkspaceItemBase;

/// Selected items of one or more workspaces. `boundingRect` is in plane units.
///
/// An item that is destroyed, leaves its workspace or is hidden by its own `visible` leaves the selection; one that is
/// merely out of view stays.
class TAMBLE_CLIENT_CONTROL_EXPORT RWorkspaceSelection : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RWorkspaceSelection)
    /// The selected items, in the order in which they came.
    Q_PROPERTY(QList<QObject *> items READ items NOTIFY itemsChanged)
    /// Their ids as texts without braces.
    Q_PROPERTY(QStringList ids READ ids NOTIFY idsChanged)
    /// How many items are selected.
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    /// Whether none is.
    Q_PROPERTY(bool empty READ empty NOTIFY emptyChanged)
    /// The item that was selected last, and still is; null for none.
    Q_PROPERTY(QObject *current READ current NOTIFY currentChanged)
    /// Rectangle around the selected items, in plane units; empty for none.
    Q_PROPERTY(QRectF boundingRect READ boundingRect NOTIFY boundingRectChanged)

public:
    /// What becomes of the items that are selected already.
    enum Mode : int {
        Replace = 0, ///< They leave the selection.
        Add = 1,     ///< They stay.
        Toggle = 2,  ///< They stay, but those that are named again leave it.
        Remove = 3,  ///< They stay, but those that are named leave it.
    };
    Q_ENUM(Mode)

    explicit RWorkspaceSelection(QObject *parent = nullptr);
    ~RWorkspaceSelection() override;

    QList<QObject *> items() const;
    QStringList ids() const;
    int count() const { return int(m_items.size()); }
    bool empty() const { return m_items.isEmpty(); }
    QObject *current() const;
    QRectF boundingRect() const;

    /// Selects an item of a workspace that has this selection; anything else is ignored.
    Q_INVOKABLE void select(QObject *item, Mode mode = Replace);
    /// Likewise the items with these ids, with or without braces, in one operation.
    Q_INVOKABLE void selectIds(const QStringList &ids, Mode mode = Replace);
    /// Whether an item is selected.
    Q_INVOKABLE bool contains(QObject *item) const;
    /// Selects nothing.
    Q_INVOKABLE void clear();

    /// The selected items, of all workspaces.
    const QList<WorkspaceItemBase *> &selected() const { return m_items; }
    /// One operation with many items; those of other selections are ignored.
    void apply(const QList<WorkspaceItemBase *> &items, Mode mode);
    /// Selects exactly these.
    void assign(const QList<WorkspaceItemBase *> &items, WorkspaceItemBase *current);

Q_SIGNALS:
    void itemsChanged();
    void idsChanged();
    void countChanged();
    void emptyChanged();
    void currentChanged();
    void boundingRectChanged();
    /// Once per operation, after the `selected` flags of all items.
    void selectionChanged();
    /// An item was added to the selection.
    void itemSelected(QObject *item);
    /// An item left the selection and is still there: of one that is destroyed `selectionChanged` tells.
    void itemDeselected(QObject *item);

private:
    friend class ItemMove;
    friend class WorkspaceBase;

    using Changed = QList<QPointer<WorkspaceItemBase>>;

    bool isOwn(const WorkspaceItemBase *item) const;
    void settle(const QList<WorkspaceItemBase *> &items, const Changed &changed, qsizetype firstCome,
                WorkspaceItemBase *current);
    void tell(const Changed &changed, qsizetype firstCome, qsizetype countBefore, bool hasOtherCurrent);
    void tellCurrent();
    void itemsGo(const QList<WorkspaceItemBase *> &items);
    void geometryChange();
    /// Between these the items of a set move one by one, and the rectangle around them is told of once.
    void holdGeometry();
    void releaseGeometry();

    QList<WorkspaceItemBase *> m_items;
    QList<WorkspaceBase *> m_workspaces; // those that have this selection
    WorkspaceItemBase *m_current = nullptr;
    mutable QRectF m_boundingRect;
    mutable bool m_isBoundingRectKnown = true;
    bool m_hasMoved = false; // since the hold began
    int m_holds = 0;
};

} // namespace tamble::client
