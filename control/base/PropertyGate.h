#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtQml/QQmlProperty>
#include <QtQml/private/qqmlpropertyvalueinterceptor_p.h>

namespace tamble::client {

class PendingValue;

/// Stands before a property: what the page says about it, by a binding or otherwise, is first told to the edit that is
/// shown there. The page's binding lives on meanwhile, as it does behind a Behavior.
class PropertyGate : public QObject, public QQmlPropertyValueInterceptor
{
    Q_OBJECT
    Q_INTERFACES(QQmlPropertyValueInterceptor)

public:
    /// The gate of a property, which may be an alias of another; made when there is none, and as long there as the
    /// object that has the property. Null where that object has no such property.
    static PropertyGate *of(QObject &target, const QString &name);

    /// The edit that is told from now on; the one before is over.
    void setEdit(PendingValue *edit);
    QVariant value() const { return m_property.read(); }
    /// Sets the property past the gate, and leaves the page's binding alone.
    void pass(const QVariant &value);
    /// Lets the page's binding write again; false when there is none.
    bool readBinding();

    void setTarget(const QQmlProperty &property) override { m_property = property; }
    void write(const QVariant &value) override;

private:
    explicit PropertyGate(const QQmlProperty &property);

    QQmlProperty m_property;
    QPointer<PendingValue> m_edit;
};

/// Lets the binding of a property write again; false when it has none.
bool readBindingOf(const QQmlProperty &property);

} // namespace tamble::client
