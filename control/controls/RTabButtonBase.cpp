#include "controls/RTabButtonBase.h"

#include "base/PartComponents.h"
#include "style/StyleSetProps.h"

#include <QtGui/QKeyEvent>

#include <utility>

namespace tamble::client {

RTabButtonBase::RTabButtonBase(QQuickItem *parent)
    : RButtonBase(parent)
{}

void RTabButtonBase::setIconKey(const QString &key)
{
    if (m_iconKey == key)
        return;
    m_iconKey = key;
    Q_EMIT iconKeyChanged();
}

void RTabButtonBase::setClosable(bool closable)
{
    if (std::exchange(m_isClosable, closable) == closable)
        return;
    updateMarks();
    Q_EMIT closableChanged();
}

void RTabButtonBase::setModified(bool modified)
{
    if (std::exchange(m_isModified, modified) == modified)
        return;
    updateDot();
    announce(*this, QAccessible::DescriptionChanged);
    Q_EMIT modifiedChanged();
}

void RTabButtonBase::setBadge(const QString &badge)
{
    if (m_badge == badge)
        return;
    m_badge = badge;
    updateMarks();
    announce(*this, QAccessible::DescriptionChanged);
    Q_EMIT badgeChanged();
}

QColor RTabButtonBase::borderColor()
{
    if (m_borderColor)
        return *m_borderColor;
    return sheetProps().isSet(QStringLiteral("border")) ? sheetProps().border() : QColor(Qt::transparent);
}

void RTabButtonBase::setBorderColor(const QColor &color)
{
    if (std::exchange(m_borderColor, color) != color)
        Q_EMIT borderColorChanged();
}

bool RTabButtonBase::borderVisible()
{
    if (m_borderVisible)
        return *m_borderVisible;
    return sheetProps().isSet(QStringLiteral("border-visible")) && sheetProps().borderVisible();
}

void RTabButtonBase::setBorderVisible(bool on)
{
    if (std::exchange(m_borderVisible, on) != on)
        Q_EMIT borderVisibleChanged();
}

QColor RTabButtonBase::borderFocus()
{
    if (m_borderFocus)
        return *m_borderFocus;
    return sheetProps().isSet(QStringLiteral("border-focus")) ? sheetProps().borderFocus() : QColor(Qt::transparent);
}

void RTabButtonBase::setBorderFocus(const QColor &color)
{
    if (std::exchange(m_borderFocus, color) != color)
        Q_EMIT borderFocusChanged();
}

bool RTabButtonBase::lineAtTop()
{
    if (m_lineAtTop)
        return *m_lineAtTop;
    return sheetProps().lineAtTop();
}

void RTabButtonBase::setLineAtTop(bool on)
{
    if (std::exchange(m_lineAtTop, on) != on)
        Q_EMIT lineAtTopChanged();
}

void RTabButtonBase::styleChange()
{
    Q_EMIT borderColorChanged();
    Q_EMIT borderVisibleChanged();
    Q_EMIT borderFocusChanged();
    Q_EMIT lineAtTopChanged();
}

void RTabButtonBase::selectionChange()
{
    updateMarks();
}

// Above the content, which comes with the end of the creation.
void RTabButtonBase::componentComplete()
{
    RButtonBase::componentComplete();
    updateMarks();
    updateDot();
}

void RTabButtonBase::updateDot()
{
    if (m_isModified && !m_dot && isComponentComplete()) {
        m_dot = PartComponents::makeItem(Part::TabDot, *this);
        if (m_dot)
            connect(m_dot, &QQuickItem::implicitWidthChanged, this, &RTabButtonBase::updateEndSpace);
    }
    updateEndSpace();
}

void RTabButtonBase::updateMarks()
{
    if (isMarked() && !m_marks && isComponentComplete()) {
        m_marks = PartComponents::makeItem(Part::TabMarks, *this);
        if (m_marks)
            connect(m_marks, &QQuickItem::widthChanged, this, &RTabButtonBase::updateEndSpace);
    }
    Q_EMIT markedChanged();
    updateEndSpace();
}

void RTabButtonBase::updateEndSpace()
{
    const qreal space =
        (m_marks && isMarked() ? m_marks->width() : 0.0) + (m_dot && m_isModified ? m_dot->implicitWidth() : 0.0);
    if (std::exchange(m_endSpace, space) == space)
        return;
    updatePadding();
    Q_EMIT endSpaceChanged();
}

// Two bindings to the same would cost each tab 0.5 KB.
void RTabButtonBase::updatePadding()
{
    if (m_endSpace > 0.0 && isMirrored())
        setLeftPadding(horizontalPadding() + m_endSpace);
    else
        resetLeftPadding();
    if (m_endSpace > 0.0 && !isMirrored())
        setRightPadding(horizontalPadding() + m_endSpace);
    else
        resetRightPadding();
}

void RTabButtonBase::paddingChange(const QMarginsF &newPadding, const QMarginsF &oldPadding)
{
    RButtonBase::paddingChange(newPadding, oldPadding);
    if (m_endSpace > 0.0)
        updatePadding();
}

void RTabButtonBase::mirrorChange()
{
    RButtonBase::mirrorChange();
    if (m_endSpace > 0.0)
        updatePadding();
}

QString RTabButtonBase::spokenDescription(const QString &given) const
{
    QStringList parts{RButtonBase::spokenDescription(given), m_isModified ? tr("modified") : QString(), m_badge};
    parts.removeAll(QString());
    return parts.join(QLatin1String(", "));
}

void RTabButtonBase::addSpokenStates(QAccessible::State &state) const
{
    RButtonBase::addSpokenStates(state);
    state.selectable = true;
    state.selected = state.checked;
}

FocusRow RTabButtonBase::row() const
{
    QList<RButtonBase *> tabs;
    if (!parentItem())
        return FocusRow();
    for (QQuickItem *sibling : parentItem()->childItems()) {
        auto *tab = qobject_cast<RTabButtonBase *>(sibling);
        if (tab && tab->isVisible() && tab->isEnabled())
            tabs.append(tab);
    }
    return FocusRow(std::move(tabs));
}

void RTabButtonBase::keyPressEvent(QKeyEvent *event)
{
    if (FocusRow::isExit(*event)) {
        event->setAccepted(row().leave(*this, *event));
        return;
    }
    if ((event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
        if (RButtonBase *tab = row().buttonAt(event->key(), this, isMirrored())) {
            event->accept();
            tab->forceActiveFocus(Qt::OtherFocusReason);
            return;
        }
        if (event->key() == Qt::Key_Delete && m_isClosable) {
            event->accept();
            if (!event->isAutoRepeat())
                requestClose();
            return;
        }
    }
    RButtonBase::keyPressEvent(event);
}

void RTabButtonBase::requestClose()
{
    const FocusRow tabs = row();
    RButtonBase *next = tabs.buttonAt(isMirrored() ? Qt::Key_Left : Qt::Key_Right, this, isMirrored());
    if (next == this)
        next = tabs.buttonAt(isMirrored() ? Qt::Key_Right : Qt::Key_Left, this, isMirrored());
    const QPointer<RButtonBase> heir = hasActiveFocus() && next != this ? next : nullptr;
    const QPointer<RTabButtonBase> guard(this);
    Q_EMIT closeRequested();
    if (heir && !(guard && hasActiveFocus()))
        heir->forceActiveFocus(Qt::OtherFocusReason);
}

void RTabButtonBase::focusInEvent(QFocusEvent *event)
{
    RButtonBase::focusInEvent(event);
    // Later, since Qt sets the focus once more when it is back from here.
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        QMetaObject::invokeMethod(this, &RTabButtonBase::passFocusToSelected, Qt::QueuedConnection);
}

void RTabButtonBase::passFocusToSelected()
{
    if (isSelected() || !hasActiveFocus())
        return;
    if (RButtonBase *selected = row().selectedTab())
        selected->forceActiveFocus(Qt::OtherFocusReason);
}

} // namespace tamble::client
