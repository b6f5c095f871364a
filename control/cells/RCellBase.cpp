#include "cells/RCellBase.h"

#include "base/InputMeaning.h"
#include "base/PartComponents.h"
#include "cells/CellEditing.h"
#include "cells/CellViewFocus.h"
#include "cells/RCellContainerBase.h"
#include "controls/RButtonBase.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QStyleHints>
#include <QtQml/qqml.h>
#include <QtQuick/QQuickWindow>
#include <QtQuick/private/qquickaccessibleattached_p.h>

#include <utility>

namespace tamble::client {

namespace {

/// A table is one stop of the Tab key.
void passByTab(QQuickItem &item)
{
    item.setActiveFocusOnTab(false);
    for (QQuickItem *child : item.childItems())
        passByTab(*child);
}

/// A character that begins a text. AltGr counts as Ctrl and Alt on some systems.
bool typesText(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool isPlain = held == Qt::NoModifier || held == (Qt::ControlModifier | Qt::AltModifier);
    return isPlain && !event.text().isEmpty() && event.text().front().isPrint();
}

/// Keys that would lead to another cell; while one is edited they are the editor's.
bool leadsElsewhere(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return false;
    }
}

} // namespace

RCellBase::RCellBase(QQuickItem *parent)
    : PlacedCell(parent)
{
    setFlag(ItemIsFocusScope);
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
    setFiltersChildMouseEvents(true);
    QAccessible::installActivationObserver(this);
}

RCellBase::~RCellBase()
{
    // It loses the focus when nothing of this is left.
    if (m_control)
        m_control->disconnect(this);
    QAccessible::removeActivationObserver(this);
}

void RCellBase::setLabel(const QString &label)
{
    if (std::exchange(m_label, label) == label)
        return;
    nameControl();
    announce(*this, QAccessible::NameChanged);
    Q_EMIT labelChanged();
}

void RCellBase::setSelected(bool selected)
{
    if (std::exchange(m_selected, selected) == selected)
        return;
    updateFrames();
    Q_EMIT selectedChanged();
}

// The current cell is where the focus is when its table has it.
void RCellBase::setCurrent(bool current)
{
    // Also without a change: a view hides cells, which costs them the focus, and uses them again.
    if (current || hasFocus())
        setFocus(current);
    if (std::exchange(m_current, current) != current)
        Q_EMIT currentChanged();
}

void RCellBase::setReadOnly(bool readOnly)
{
    if (std::exchange(m_readOnly, readOnly) == readOnly)
        return;
    followLock();
    Q_EMIT readOnlyChanged();
}

bool RCellBase::isLocked() const
{
    return m_readOnly || (container() && container()->isReadOnly());
}

void RCellBase::setControl(QQuickItem *control)
{
    // What the cell is placed in, or is itself, cannot be placed in it.
    if (m_control == control || control == this || (control && control->isAncestorOf(this)))
        return;
    if (m_control)
        m_control->disconnect(this);
    m_control = control;
    if (control) {
        passByTab(*control);
        nameControl();
    }
    contentMove();
    followLock();
    Q_EMIT controlChanged();
}

void RCellBase::setControlPadded(bool padded)
{
    if (std::exchange(m_controlPadded, padded) == padded)
        return;
    contentMove();
    Q_EMIT controlPaddedChanged();
}

void RCellBase::setRefusal(const QString &reason)
{
    if (std::exchange(m_refusal, reason) == reason)
        return;
    PartComponents::show(m_refusalMark, Part::CellRefusal, *this, !reason.isEmpty());
    if (m_refusalMark)
        m_refusalMark->setProperty("text", reason);
    announce(*this, QAccessible::DescriptionChanged);
    Q_EMIT refusalChanged();
}

void RCellBase::setHighlighted(bool highlighted)
{
    if (std::exchange(m_highlighted, highlighted) != highlighted)
        updateFrames();
}

QString RCellBase::takeText(const QString &)
{
    return tr("This cell takes no text");
}

QString RCellBase::textToCopy() const
{
    QString text;
    QMetaObject::invokeMethod(const_cast<RCellBase *>(this), "cellText", Q_RETURN_ARG(QString, text));
    return text;
}

QString RCellBase::pasteText(const QString &text)
{
    if (isLocked())
        return tr("This cell cannot be edited");
    QString reason;
    QMetaObject::invokeMethod(this, "takeText", Q_RETURN_ARG(QString, reason), Q_ARG(QString, text));
    return reason;
}

QString RCellBase::spokenName() const
{
    return m_label.isEmpty() ? textToCopy() : m_label;
}

QString RCellBase::spokenDescription(const QString &given) const
{
    QStringList parts{tr("row %1, column %2").arg(row() + 1).arg(column() + 1)};
    const QString text = m_label.isEmpty() ? QString() : textToCopy();
    for (const QString &part : {text, given, m_consistent ? QString() : tr("mixed"), m_refusal}) {
        if (!part.isEmpty())
            parts.append(part);
    }
    return parts.join(QStringLiteral(", "));
}

void RCellBase::addSpokenStates(QAccessible::State &state) const
{
    state.focusable = true;
    state.selectable = isSelectable();
    state.selected = m_selected || m_highlighted;
    state.readOnly = isLocked();
}

bool RCellBase::pressBySpeech()
{
    use();
    return true;
}

void RCellBase::accessibilityActiveChanged(bool active)
{
    if (!active)
        return;
    beginToSpeak(*this);
    nameControl();
}

void RCellBase::componentComplete()
{
    PlacedCell::componentComplete();
    if (QQuickItem *view = CellViewFocus::viewOf(*this))
        CellViewFocus::follow(*view);
    if (QAccessible::isActive())
        accessibilityActiveChanged(true);
}

void RCellBase::itemChange(ItemChange change, const ItemChangeData &data)
{
    PlacedCell::itemChange(change, data);
    switch (change) {
    case ItemActiveFocusHasChanged:
        // Moves between the cell and its control matter while the focus is here only.
        if (m_control && data.boolValue)
            connect(m_control, &QQuickItem::activeFocusChanged, this, &RCellBase::followFocus, Qt::UniqueConnection);
        else if (m_control)
            disconnect(m_control, &QQuickItem::activeFocusChanged, this, &RCellBase::followFocus);
        followFocus();
        if (data.boolValue && container())
            container()->makeCurrent(*this);
        else if (data.boolValue)
            CellViewFocus::tell(*this);
        break;
    case ItemVisibleHasChanged:
        if (m_current && data.boolValue)
            setFocus(true);
        break;
    default:
        break;
    }
}

// The button of a cell has the focus of its cell and looks the same when it must not be pressed.
void RCellBase::followLock()
{
    auto *button = qobject_cast<QQuickAbstractButton *>(m_control.get());
    if (button)
        button->setFocus(!isLocked());
    followFocus();
    Q_EMIT lockedChanged();
}

void RCellBase::contentMove()
{
    if (!m_control)
        return;
    const RCellGridPropertiesBase *grid = gridProperties();
    const double padding = !m_controlPadded ? 0.0 : grid ? grid->padding() : 4.0 * unit();
    m_control->setX(padding);
    m_control->setSize({std::max(0.0, width() - 2.0 * padding), height()});
}

// Only for tools that listen: the attached object costs 2.4 KB.
void RCellBase::nameControl()
{
    if (!QAccessible::isActive() || !m_control || m_label.isEmpty())
        return;
    auto *accessible = qobject_cast<QQuickAccessibleAttached *>(
        qmlAttachedPropertiesObject<QQuickAccessibleAttached>(m_control.get(), true));
    accessible->setName(m_label);
}

void RCellBase::updateFrames()
{
    PartComponents::show(m_focusFrame, Part::FocusFrame, *this,
                         hasActiveFocus() && !(m_control && m_control->hasActiveFocus()));
    // Without a tint, the current cell is seen among selected ones.
    PartComponents::show(m_selectionFrame, Part::CellSelection, *this,
                         m_selected || (m_highlighted && !hasActiveFocus()));
}

bool RCellBase::edit()
{
    if (!m_control || isLocked() || !m_control->isEnabled() || !CellEditing::takesKeys(*m_control))
        return false;
    m_control->forceActiveFocus(Qt::TabFocusReason);
    return m_control && m_control->hasActiveFocus();
}

void RCellBase::endEditing()
{
    if (isEditing())
        m_control->setFocus(false, Qt::OtherFocusReason);
}

void RCellBase::use()
{
    const QPointer<RCellBase> guard(this);
    auto *button = qobject_cast<RButtonBase *>(m_control.get());
    if (button && !isLocked()) {
        button->click();
        return;
    }
    edit();
    if (guard)
        Q_EMIT activated(-1);
}

void RCellBase::followFocus()
{
    const bool isOpen = m_control && m_control->hasActiveFocus() && CellEditing::takesKeys(*m_control) && !isLocked();
    if (isOpen && !m_editing)
        m_editing = std::make_unique<CellEditing>(*this);
    if (m_editing && m_editing->setEditor(isOpen ? window()->activeFocusItem() : nullptr)) {
        if (isEditing())
            setRefusal({});
        Q_EMIT editingChanged();
    }
    updateFrames();
}

void RCellBase::keyPressEvent(QKeyEvent *event)
{
    if (isEditing()) {
        event->setAccepted(m_editing->leaveBy(*event) || leadsElsewhere(*event));
    } else if (isEnterKey(*event) || event->key() == Qt::Key_F2) {
        // Held down, it answers once: what a button does may get loud.
        if (!event->isAutoRepeat())
            use();
    } else if (asksForMenu(*event)) {
        Q_EMIT contextMenuRequested(boundingRect().center());
    } else if (typesText(*event) && edit()) {
        QKeyEvent typed(QEvent::KeyPress, event->key(), event->modifiers(), event->text());
        QCoreApplication::sendEvent(window()->activeFocusItem(), &typed);
    } else if (container() || !CellViewFocus::leave(*this, *event)) {
        event->ignore();
    }
}

void RCellBase::mousePressEvent(QMouseEvent *event)
{
    m_pressedAt = event->position();
    if (!isByFinger(*event))
        takeFocus();
    if (event->button() == Qt::RightButton)
        Q_EMIT contextMenuRequested(m_pressedAt);
    else
        m_longPress.start(longPressMs, this);
}

void RCellBase::mouseMoveEvent(QMouseEvent *event)
{
    const QPointF way = event->position() - m_pressedAt;
    if (way.manhattanLength() > QGuiApplication::styleHints()->startDragDistance())
        m_longPress.stop();
}

void RCellBase::mouseReleaseEvent(QMouseEvent *event)
{
    m_longPress.stop();
    // A finger may scroll until it is lifted.
    if (isByFinger(*event))
        takeFocus();
}

void RCellBase::takeFocus()
{
    if (!container() || container()->isReachable(*this))
        forceActiveFocus(Qt::MouseFocusReason);
}

void RCellBase::mouseUngrabEvent()
{
    m_longPress.stop();
}

void RCellBase::mouseDoubleClickEvent(QMouseEvent *event)
{
    m_longPress.stop();
    if (event->button() == Qt::LeftButton)
        use();
}

void RCellBase::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_longPress.timerId())
        return;
    m_longPress.stop();
    Q_EMIT contextMenuRequested(m_pressedAt);
}

bool RCellBase::childMouseEventFilter(QQuickItem *item, QEvent *event)
{
    if (isLocked() && qobject_cast<QQuickAbstractButton *>(m_control.get())) {
        if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin)
            forceActiveFocus(Qt::MouseFocusReason);
        return true;
    }
    // A field has a menu of its own, which is meant while it is edited.
    if (event->type() != QEvent::MouseButtonPress || isEditing())
        return false;
    const auto *press = static_cast<QMouseEvent *>(event);
    if (press->button() != Qt::RightButton)
        return false;
    takeFocus();
    Q_EMIT contextMenuRequested(mapFromItem(item, press->position()));
    return true;
}

bool RCellBase::isEditing() const
{
    return m_editing && m_editing->isUnderWay();
}

void RCellBase::stepBy(CellMove move)
{
    if (container())
        container()->step(move);
}

void RCellBase::containerChange()
{
    if (container())
        connect(this, &RCellBase::activated, container(), [this, table = container()] { table->activate(*this); });
    followLock();
}

} // namespace tamble::client
