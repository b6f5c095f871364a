#pragma once

#include "base/ControlExport.h"

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtQml/QQmlListProperty>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/private/qquickrepeater_p.h>

namespace tamble::client {

/// Repeater that gives what it makes as a list.
class TAMBLE_CLIENT_CONTROL_EXPORT RRepeaterBase : public QQuickRepeater
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RRepeaterBase)
    /// What has been made, in the order of the model.
    Q_PROPERTY(QQmlListProperty<QObject> items READ items NOTIFY itemsChanged FINAL)

public:
    explicit RRepeaterBase(QQuickItem *parent = nullptr);
    ~RRepeaterBase() override;

    QQmlListProperty<QObject> items();
    /// What was made for a row of the model; null outside of it.
    Q_INVOKABLE QObject *objectAt(int row) const { return itemAt(row); }

Q_SIGNALS:
    void itemsChanged();

private Q_SLOTS:
    /// Lists anew what has been made, as after a move in the model.
    void collect();

private:
    void followModel();
    void forget(QObject *item);

    QPointer<QObject> m_model; ///< Whose moves are followed.
    QList<QObject *> m_items;
};

} // namespace tamble::client
