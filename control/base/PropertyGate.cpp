#include "base/PropertyGate.h"

#include "base/PendingValue.h"

#include <QtQml/private/qqmlabstractbinding_p.h>
#include <QtQml/private/qqmldata_p.h>
#include <QtQml/private/qqmlproperty_p.h>
#include <QtQml/private/qqmlvmemetaobject_p.h>

#include <utility>

namespace tamble::client {

namespace {

/// The property itself, or the one that it is an alias of: a page's binding to it lives there.
QQmlProperty boundProperty(QObject &target, const QString &name)
{
    const QQmlProperty property(&target, name);
    if (!property.isProperty())
        return property;
    const auto [object, index] =
        QQmlPropertyPrivate::findAliasTarget(&target, QQmlPropertyPrivate::propertyIndex(property));
    if (!object || object == &target || index.hasValueTypeIndex())
        return property;
    return {object, QString::fromUtf8(object->metaObject()->property(index.coreIndex()).name())};
}

} // namespace

PropertyGate::PropertyGate(const QQmlProperty &property)
    : QObject(property.object())
    , m_property(property)
{
    QObject *target = property.object();
    QQmlInterceptorMetaObject *writes = QQmlInterceptorMetaObject::get(target);
    if (!writes) // belongs to the target
        writes = new QQmlInterceptorMetaObject(target, QQmlData::ensurePropertyCache(target));
    writes->registerInterceptor(QQmlPropertyPrivate::propertyIndex(property), this);
    // A binding looks for gates when it is set, and goes round those that come later.
    if (QQmlAbstractBinding *binding = QQmlPropertyPrivate::binding(property))
        binding->setCanUseAccessor(false);
}

PropertyGate *PropertyGate::of(QObject &target, const QString &name)
{
    const QQmlProperty property = boundProperty(target, name);
    if (!property.isProperty())
        return nullptr;
    const auto gates = property.object()->findChildren<PropertyGate *>(QString(), Qt::FindDirectChildrenOnly);
    for (PropertyGate *gate : gates) {
        if (gate->m_property == property)
            return gate;
    }
    return new PropertyGate(property);
}

void PropertyGate::setEdit(PendingValue *edit)
{
    const QPointer<PendingValue> before = std::exchange(m_edit, edit);
    if (before && before != edit)
        before->finish();
}

void PropertyGate::write(const QVariant &value)
{
    // Where the property takes anything, Qt wraps it once more.
    const QVariant said = value.metaType() == QMetaType::fromType<QVariant>() ? value.value<QVariant>() : value;
    if (!m_edit || !m_edit->hears(said))
        pass(said);
}

void PropertyGate::pass(const QVariant &value)
{
    QQmlPropertyPrivate::write(m_property, value,
                               QQmlPropertyData::BypassInterceptor | QQmlPropertyData::DontRemoveBinding);
}

bool PropertyGate::readBinding()
{
    return readBindingOf(m_property);
}

bool readBindingOf(const QQmlProperty &property)
{
    QQmlAbstractBinding *binding = QQmlPropertyPrivate::binding(property);
    if (!binding)
        return false;
    binding->setEnabled(false);
    binding->setEnabled(true);
    return true;
}

} // namespace tamble::client
