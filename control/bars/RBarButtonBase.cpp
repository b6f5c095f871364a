#include "bars/RBarButtonBase.h"

#include "bars/BadgeText.h"
#include "base/PartComponents.h"
#include "style/StyleSetProps.h"

#include <utility>

namespace tamble::client {

RBarButtonBase::RBarButtonBase(QQuickItem *parent)
    : RButtonBase(parent)
{}

void RBarButtonBase::setLabel(const QString &label)
{
    if (m_label == label)
        return;
    m_label = label;
    announce(*this, QAccessible::NameChanged);
    updateToolTip();
    Q_EMIT labelChanged();
}

void RBarButtonBase::setIconKey(const QString &key)
{
    if (m_iconKey == key)
        return;
    m_iconKey = key;
    iconChange();
    Q_EMIT iconKeyChanged();
}

void RBarButtonBase::setBadge(const QString &badge)
{
    if (m_badge == badge)
        return;
    m_badge = badge;
    if (!badge.isEmpty() && !m_badgeFrame)
        m_badgeFrame = PartComponents::makeItem(Part::BarBadge, *this);
    announce(*this, QAccessible::DescriptionChanged);
    Q_EMIT badgeChanged();
}

QString RBarButtonBase::shortBadge() const
{
    return tamble::client::shortBadge(m_badge);
}

void RBarButtonBase::setShortened(bool shortened)
{
    if (m_isShortened == shortened)
        return;
    m_isShortened = shortened;
    updateToolTip();
    Q_EMIT shortenedChanged();
}

QColor RBarButtonBase::borderColor()
{
    if (m_borderColor.isValid())
        return m_borderColor;
    return sheetProps().isSet(QStringLiteral("border")) ? sheetProps().border() : QColor(Qt::transparent);
}

void RBarButtonBase::setBorderColor(const QColor &color)
{
    if (std::exchange(m_borderColor, color) != color)
        Q_EMIT borderColorChanged();
}

bool RBarButtonBase::borderVisible()
{
    if (m_borderVisible)
        return *m_borderVisible;
    return sheetProps().isSet(QStringLiteral("border-visible")) && sheetProps().borderVisible();
}

void RBarButtonBase::setBorderVisible(bool visible)
{
    if (std::exchange(m_borderVisible, visible) != visible)
        Q_EMIT borderVisibleChanged();
}

void RBarButtonBase::styleChange()
{
    Q_EMIT borderColorChanged();
    Q_EMIT borderVisibleChanged();
}

QString RBarButtonBase::spokenName() const
{
    return m_label.isEmpty() ? plainText() : m_label;
}

QString RBarButtonBase::spokenDescription(const QString &given) const
{
    QStringList parts{RButtonBase::spokenDescription(given), m_badge};
    parts.removeAll(QString());
    return parts.join(QLatin1String(", "));
}

void RBarButtonBase::hoverEnterEvent(QHoverEvent *event)
{
    RButtonBase::hoverEnterEvent(event);
    updateToolTip();
}

void RBarButtonBase::hoverLeaveEvent(QHoverEvent *event)
{
    RButtonBase::hoverLeaveEvent(event);
    updateToolTip();
}

void RBarButtonBase::focusInEvent(QFocusEvent *event)
{
    RButtonBase::focusInEvent(event);
    updateToolTip();
}

void RBarButtonBase::focusOutEvent(QFocusEvent *event)
{
    RButtonBase::focusOutEvent(event);
    updateToolTip();
}

void RBarButtonBase::buttonChange(ButtonChange change)
{
    RButtonBase::buttonChange(change);
    if (change == ButtonPressedChanged || change == ButtonTextChange)
        updateToolTip();
}

// By whatever points at a button: the mouse, the keyboard, or a finger that stays on it.
void RBarButtonBase::updateToolTip()
{
    const QString name = spokenName();
    const bool isFocused = hasActiveFocus() && focusReason() != Qt::MouseFocusReason;
    const bool isShown = m_isShortened && !name.isEmpty() && (isHovered() || isFocused || isPressed());
    if (isShown && !m_toolTip)
        m_toolTip = new LateToolTip(*this);
    if (isShown)
        m_toolTip->show(name);
    else if (m_toolTip)
        m_toolTip->hide();
}

} // namespace tamble::client
