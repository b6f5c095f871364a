#include "base/ToolInterfaces.h"

#include "base/SpokenControl.h"

#include <QtGui/QWindow>
#include <QtQuick/private/qaccessiblequickitem_p.h>
#include <QtQuick/private/qquickaccessibleattached_p.h>
#include <QtQuick/private/qquickitem_p.h>

namespace tamble::client {

namespace {

class RequestingInterface : public QAccessibleQuickItem
{
public:
    using QAccessibleQuickItem::QAccessibleQuickItem;

    void setCurrentValue(const QVariant &value) override
    {
        if (!QMetaObject::invokeMethod(item(), "requestValue", Q_ARG(QVariant, value)))
            QAccessibleQuickItem::setCurrentValue(value);
    }
};

class SpokenInterface : public RequestingInterface
{
public:
    using RequestingInterface::RequestingInterface;

    QAccessible::Role role() const override
    {
        const SpokenControl *control = this->control();
        return control ? control->spokenRole() : QAccessible::NoRole;
    }

    QAccessible::State state() const override
    {
        const SpokenControl *control = this->control();
        if (!control)
            return {};
        const auto *attached = QQuickAccessibleAttached::attachedProperties(item());
        QAccessible::State state = attached ? attached->state() : QAccessible::State();
        state.invisible =
            !window() || !window()->isVisible() || !item()->isVisible() || qFuzzyIsNull(item()->opacity());
        state.offscreen = !viewRect().intersects(rect());
        state.disabled = !item()->isEnabled();
        state.focusable = item()->activeFocusOnTab();
        state.focused = item()->hasActiveFocus();
        control->addSpokenStates(state);
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        const SpokenControl *control = this->control();
        if (!control)
            return {};
        if (kind == QAccessible::Name)
            return spokenNameOf(*item());
        const QString given = RequestingInterface::text(kind);
        return kind == QAccessible::Description ? control->spokenDescription(given) : given;
    }

    QAccessibleInterface *child(int index) const override
    {
        return QAccessible::queryAccessibleInterface(children().value(index));
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return int(children().indexOf(qobject_cast<QQuickItem *>(child->object())));
    }

    void doAction(const QString &action) override
    {
        SpokenControl *control = this->control();
        if (action != pressAction() || !control) {
            RequestingInterface::doAction(action);
            return;
        }
        auto *attached = QQuickAccessibleAttached::attachedProperties(item());
        if ((!attached || !attached->doAction(action)) && !control->pressBySpeech())
            RequestingInterface::doAction(action);
    }

private:
    /// Null while the item is being destroyed, which is told as well.
    SpokenControl *control() const { return dynamic_cast<SpokenControl *>(object()); }

    QList<QQuickItem *> children() const
    {
        const SpokenControl *control = this->control();
        return control ? control->spokenOrder(childItems()) : QList<QQuickItem *>();
    }
};

// Asked for each class of the object, the most derived one first.
QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    const QMetaObject *type = object->metaObject();
    if (className != QLatin1String(type->className()))
        return nullptr;
    auto *item = qobject_cast<QQuickItem *>(object);
    if (dynamic_cast<SpokenControl *>(object))
        return isIgnoredByTools(*item) ? nullptr : new SpokenInterface(item);
    if (item && QQuickItemPrivate::get(item)->isAccessible && type->indexOfMethod("requestValue(QVariant)") >= 0)
        return new RequestingInterface(item);
    return nullptr;
}

} // namespace

void installToolInterfaces()
{
    QAccessible::installFactory(makeInterface);
}

} // namespace tamble::client
