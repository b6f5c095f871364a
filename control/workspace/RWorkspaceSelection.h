#pragma once

#include "base/ControlExport.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QRectF>
#include <QtCore/QStringList>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Selected items of one or more workspaces. `boundingRect` is in plane units.
class TAMBLE_CLIENT_CONTROL_EXPORT RWorkspaceSelection : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RWorkspaceSelection)
    Q_PROPERTY(QList<QObject *> items READ items NOTIFY itemsChanged)
    Q_PROPERTY(QStringList ids READ ids NOTIFY idsChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(bool empty READ empty NOTIFY emptyChanged)
    Q_PROPERTY(QObject *current READ current NOTIFY currentChanged)
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
    void itemSelected(QObject *item);
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
