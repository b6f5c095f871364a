#pragma once

#include "base/ControlExport.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

/// Shows what a user edits in front of what a page says about a property: devices answer late, and what they say
/// meanwhile must not pull the value from under the pointer.
///
/// From the first edit on the property has the edited value, and a page's binding to it rests. `settleTime` ms (default
/// 300) after the edit is over the binding is read again, whether the device took the edit or refused it; a property
/// without one keeps the edit. That time is not cut short when the binding says the edit already: many pages echo it at
/// once, and answers of the device to earlier edits are then still on their way.
class TAMBLE_CLIENT_CONTROL_EXPORT PendingValue : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RPendingValue)
    Q_PROPERTY(QObject *target READ target WRITE setTarget NOTIFY targetChanged FINAL)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged FINAL)
    Q_PROPERTY(int settleTime READ settleTime WRITE setSettleTime NOTIFY settleTimeChanged FINAL)
    Q_PROPERTY(bool active READ isActive NOTIFY activeChanged FINAL)
    Q_PROPERTY(QVariant valueAtBegin READ valueAtBegin NOTIFY activeChanged FINAL)

public:
    explicit PendingValue(QObject *parent = nullptr);
    /// For a property of the object that owns this.
    PendingValue(QObject *target, const QString &name);

    /// The object whose property `name` is edited. Neither changes during an edit.
    QObject *target() const { return m_target; }
    void setTarget(QObject *target);
    QString name() const { return m_name; }
    void setName(const QString &name);
    /// How long, in ms, an edit is shown after it is over.
    int settleTime() const { return m_settleTime; }
    void setSettleTime(int ms);
    /// An edit is shown, whether under way or settling.
    bool isActive() const { return m_isActive; }
    /// What the property was when the present edit, or the last one, began.
    QVariant valueAtBegin() const { return m_valueAtBegin; }

    /// Begins an edit with the value that the property has; nothing within one.
    Q_INVOKABLE void begin();
    /// Shows a value, and begins an edit when none is under way.
    Q_INVOKABLE void show(const QVariant &value);
    /// The edit is over and settles.
    Q_INVOKABLE void commit();
    /// Shows the value of before the edit and ends it at once.
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void targetChanged();
    void nameChanged();
    void settleTimeChanged();
    void activeChanged();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void forgetBinding();
    void write(const QVariant &value);
    void setActive(bool active);

    QPointer<QObject> m_target;
    QString m_name;
    QObject *m_binding = nullptr; // a child, made at the first edit of `name`: holds back the page's binding
    QVariant m_valueAtBegin;
    QBasicTimer m_settling;
    int m_settleTime = 300;
    bool m_isOpen = false;
    bool m_isActive = false;
};

} // namespace tamble::client
