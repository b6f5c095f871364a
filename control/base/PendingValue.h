#pragma once

#include "base/ControlExport.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtQml/qqmlregistration.h>

namespace tamble::client {

class PropertyGate;

/// Shows what a user edits in front of what a page says about a property: devices answer late, and what they say
/// meanwhile must not pull the value from under the pointer.
///
/// From the first edit on the property has the edited value, and what the page says waits. The edit is over when the
/// page comes to say it after the commit, which is how a device answers, and at the latest after `settleTime` ms
/// (default 300), whether the device took it or refused it. Then the page's binding counts again, or what else the page
/// has said meanwhile; where it has said nothing the edit stays.
///
/// What a page echoes while it is told of an edit is no answer: those to earlier edits are then still on their way. So
/// an edit is told first and committed then.
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
    ~PendingValue() override;

    /// The object whose property `name` is edited. Neither changes during an edit. The property is none of Qt's
    /// bindable ones, and a Behavior on it rests from the first edit on.
    QObject *target() const { return m_target; }
    void setTarget(QObject *target);
    QString name() const { return m_name; }
    void setName(const QString &name);
    /// How long, in ms, a committed edit waits for an answer.
    int settleTime() const { return m_settleTime; }
    void setSettleTime(int ms);
    /// An edit is shown, whether under way or settling.
    bool isActive() const { return m_isActive; }
    /// What the property was when the present edit, or the last one, began: what Esc shows, tells and commits.
    QVariant valueAtBegin() const { return m_valueAtBegin; }

    /// Begins an edit with the value that the property has; nothing within one.
    Q_INVOKABLE void begin();
    /// Shows a value, and begins an edit when none is under way.
    Q_INVOKABLE void show(const QVariant &value);
    /// The gesture is over, and the edit settles.
    Q_INVOKABLE void commit();

Q_SIGNALS:
    void targetChanged();
    void nameChanged();
    void settleTimeChanged();
    void activeChanged();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    friend class PropertyGate;

    PropertyGate *gate();
    /// The page says this; true when it waits.
    bool hears(const QVariant &said);
    /// Ends the edit: what the page says counts again.
    void finish();
    void end();

    QPointer<QObject> m_target;
    QString m_name;
    QPointer<PropertyGate> m_gate; // a child of the object that has the property, found at the first edit
    QVariant m_valueAtBegin;
    QVariant m_said; // by the page, last
    QBasicTimer m_settling;
    int m_settleTime = 300;
    bool m_isOpen = false;
    bool m_isActive = false;
    bool m_hasSaid = false; // anything during the edit
};

} // namespace tamble::client
