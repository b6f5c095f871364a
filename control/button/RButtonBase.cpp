#include "button/RButtonBase.h"

#include "button/Mnemonic.h"
#include "decoration/PartComponents.h"
#include "style/StyleTypeName.h"

#include <QtCore/QSet>
#include <QtGui/QAccessible>
#include <QtGui/QKeyEvent>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQml/qqml.h>
#include <QtQuick/private/qquickaccessibleattached_p.h>

namespace tamble::client {

RButtonBase::RButtonBase(QQuickItem *parent)
    : QQuickAbstractButton(parent)
{}

void RButtonBase::setSelectable(bool selectable)
{
    if (m_selectable == selectable)
        return;
    m_selectable = selectable;
    tellAssistiveTools();
    Q_EMIT selectableChanged();
}

void RButtonBase::setSelected(bool selected)
{
    if (m_selected == selected)
        return;
    m_selected = selected;
    tellAssistiveTools();
    Q_EMIT selectedChanged();
}

void RButtonBase::setConsistent(bool consistent)
{
    if (m_consistent == consistent)
        return;
    m_consistent = consistent;
    tellAssistiveTools();
    Q_EMIT consistentChanged();
}

QString RButtonBase::plainText() const
{
    return withoutMnemonic(text());
}

void RButtonBase::keyReleaseEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Enter || event->key() == Qt::Key_Return;
    if (!m_enterClicks || !isEnter || event->isAutoRepeat()) {
        QQuickAbstractButton::keyReleaseEvent(event);
        return;
    }
    event->accept();
    if (m_useCustomEvent) {
        Q_EMIT customEventActivated();
    } else {
        click();
    }
}

void RButtonBase::click()
{
    nextCheckState();
    Q_EMIT clicked();
}

void RButtonBase::nextCheckState()
{
    if (m_selectable)
        editSelection();
    QQuickAbstractButton::nextCheckState();
}

void RButtonBase::buttonChange(ButtonChange change)
{
    QQuickAbstractButton::buttonChange(change);
    if (change != ButtonTextChange)
        return;
    maybeSetAccessibleName(plainText());
    Q_EMIT plainTextChanged();
}

void RButtonBase::accessibilityActiveChanged(bool active)
{
    QQuickAbstractButton::accessibilityActiveChanged(active);
    if (!active)
        return;
    maybeSetAccessibleName(plainText());
    if (auto *tools = QQuickAccessibleAttached::attachedProperties(this))
        connect(tools, &QQuickAccessibleAttached::pressAction, this, &RButtonBase::click, Qt::UniqueConnection);
    tellAssistiveTools();
    warnAboutMissingName();
}

void RButtonBase::warnAboutMissingName() const
{
    static QSet<QString> warnedTypes;
    const QString type = styleTypeName(metaObject()->className());
    if (accessibleName().isEmpty() && !warnedTypes.contains(type)) {
        warnedTypes.insert(type);
        qWarning("WARN: %s has no accessible name", qPrintable(type));
    }
}

void RButtonBase::tellAssistiveTools()
{
    if (!QAccessible::isActive())
        return;
    setAccessibleProperty("checkable", m_selectable || m_selected);
    setAccessibleProperty("checked", m_consistent && m_selected);
    // No state says "mixed"; a description that the page gave stays.
    const QString mixed = tr("mixed");
    const QString description = accessibleProperty("description").toString();
    if (description.isEmpty() || description == mixed)
        setAccessibleProperty("description", m_consistent ? QString() : mixed);
}

// A page may bind the selection to a device, which answers late; the edit steps in front of the binding meanwhile.
void RButtonBase::editSelection()
{
    const bool selected = !m_consistent || !m_selected;
    QQmlEngine *engine = qmlEngine(this);
    if (!m_selectionEdit && engine) {
        QQmlComponent &component = PartComponents::of(engine).component(QStringLiteral("Shared/RValueEdit.qml"));
        m_selectionEdit = component.createWithInitialProperties({{QStringLiteral("target"), QVariant::fromValue(this)},
                                                                 {QStringLiteral("name"), QStringLiteral("selected")}});
        if (m_selectionEdit)
            m_selectionEdit->setParent(this);
    }
    if (m_selectionEdit) {
        QMetaObject::invokeMethod(m_selectionEdit, "begin", Q_ARG(QVariant, selected));
        QMetaObject::invokeMethod(m_selectionEdit, "commit");
    } else {
        setSelected(selected);
    }
    Q_EMIT selectionEdited(selected);
}

} // namespace tamble::client
