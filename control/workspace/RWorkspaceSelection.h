#pragma once

#include "base/ControlExport.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QRectF>
#include <QtCore/QStringList>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Declared only: nothing follows from its properties yet.
///
/// Selected items of one or more workspaces. `boundingRect` is in plane units.
class TAMBLE_CLIENT_CONTROL_EXPORT RWorkspaceSelection : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RWorkspaceSelection)
    /// The selected items.
    Q_PROPERTY(QList<QObject *> items READ items NOTIFY itemsChanged)
    /// Their ids as texts without braces.
    Q_PROPERTY(QStringList ids READ ids NOTIFY idsChanged)
    /// How many items are selected.
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    /// Whether none is.
    Q_PROPERTY(bool empty READ empty NOTIFY emptyChanged)
    /// The item that keys act on; null for none.
    Q_PROPERTY(QObject *current READ current NOTIFY currentChanged)
    /// Rectangle around the selected items, in plane units.
    Q_PROPERTY(QRectF boundingRect READ boundingRect NOTIFY boundingRectChanged)

public:
    enum Mode : int {
        Replace = 0,
        Add = 1,
        Toggle = 2,
        Remove = 3,
    };
    Q_ENUM(Mode)

    explicit RWorkspaceSelection(QObject *parent = nullptr);

    QList<QObject *> items() const { return m_items; }
    QStringList ids() const { return m_ids; }
    int count() const { return m_count; }
    bool empty() const { return m_empty; }
    QObject *current() const { return m_current; }
    QRectF boundingRect() const { return m_boundingRect; }

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
    /// An item left the selection.
    void itemDeselected(QObject *item);

private:
    QList<QObject *> m_items;
    QStringList m_ids;
    int m_count = 0;
    bool m_empty = true;
    QPointer<QObject> m_current;
    QRectF m_boundingRect;
};

} // namespace tamble::client
