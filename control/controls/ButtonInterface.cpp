#include "controls/ButtonInterface.h"

#include "controls/RButtonBase.h"

#include <QtGui/QAccessible>
#include <QtGui/QWindow>
#include <QtQuick/private/qquickaccessibleattached_p.h>
#include <QtQuick/private/qquickitem_p.h>

namespace tamble::client {

namespace {

QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    // Asked for each class of the object, the most derived one first.
    if (className != QLatin1String(RButtonBase::staticMetaObject.className()))
        return nullptr;
    auto *button = static_cast<RButtonBase *>(object);
    return isIgnoredByTools(*button) ? nullptr : new ButtonInterface(button);
}

} // namespace

ButtonInterface::ButtonInterface(RButtonBase *button)
    : QAccessibleQuickItem(button)
{}

QAccessible::Role ButtonInterface::role() const
{
    return object() ? QQuickItemPrivate::get(item())->accessibleRole() : QAccessible::NoRole;
}

RButtonBase *ButtonInterface::button() const
{
    return qobject_cast<RButtonBase *>(object());
}

QAccessible::State ButtonInterface::state() const
{
    const RButtonBase *button = this->button();
    if (!button)
        return {};
    const auto *attached = QQuickAccessibleAttached::attachedProperties(button);
    QAccessible::State state = attached ? attached->state() : QAccessible::State();
    state.invisible = !window() || !window()->isVisible() || !button->isVisible() || qFuzzyIsNull(button->opacity());
    state.offscreen = !viewRect().intersects(rect());
    state.disabled = !button->isEnabled();
    state.focusable = button->activeFocusOnTab();
    state.focused = button->hasActiveFocus();
    state.pressed = button->isDown();
    state.checkable = state.checkable || button->isSelectable() || button->isSelected();
    state.checked = button->isConsistent() && button->isSelected();
    state.checkStateMixed = !button->isConsistent();
    state.selectable = role() == QAccessible::PageTab;
    state.selected = state.selectable && state.checked;
    return state;
}

QString ButtonInterface::text(QAccessible::Text kind) const
{
    const RButtonBase *button = this->button();
    if (!button)
        return {};
    if (kind == QAccessible::Name)
        return accessibleNameOf(*button);
    const QString given = QAccessibleQuickItem::text(kind);
    if (kind == QAccessible::Description && given.isEmpty())
        return button->conditions().join(QLatin1String(", "));
    return given;
}

void ButtonInterface::doAction(const QString &action)
{
    RButtonBase *button = this->button();
    if (action != pressAction() || !button) {
        QAccessibleQuickItem::doAction(action);
        return;
    }
    auto *attached = QQuickAccessibleAttached::attachedProperties(button);
    if (!attached || !attached->doAction(action))
        button->click();
}

QString accessibleNameOf(const RButtonBase &button)
{
    const auto *attached = QQuickAccessibleAttached::attachedProperties(&button);
    return attached && !attached->name().isEmpty() ? attached->name() : button.plainText();
}

bool isIgnoredByTools(const RButtonBase &button)
{
    const auto *attached = QQuickAccessibleAttached::attachedProperties(&button);
    return attached && attached->ignored();
}

void installButtonInterfaces()
{
    QAccessible::installFactory(makeInterface);
}

} // namespace tamble::client
