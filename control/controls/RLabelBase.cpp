#include "controls/RLabelBase.h"

#include "base/ControlLog.h"
#include "base/Mnemonic.h"

#include <QtQml/QQmlComponent>
#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>
#include <QtQml/QQmlInfo>
#include <QtQuick/private/qquickaccessibleattached_p.h>
#include <QtQuick/private/qquickshortcut_p.h>

#include <utility>

namespace tamble::client {

namespace {

QString withUnderlinedKey(const QString &text, qsizetype mark)
{
    return withoutMnemonic(text.left(mark)).toHtmlEscaped() + QStringLiteral("<u>") + text[mark + 1] +
           QStringLiteral("</u>") + withoutMnemonic(text.mid(mark + 2)).toHtmlEscaped();
}

// What is typed into an item that can be read only is no name.
bool namesItself(const QObject &item)
{
    const bool edits = item.metaObject()->indexOfProperty("readOnly") >= 0;
    return !item.property("label").toString().isEmpty() || !item.property("title").toString().isEmpty() ||
           (!edits && !item.property("text").toString().isEmpty());
}

QQuickAccessibleAttached *accessibleOf(QQuickItem *item)
{
    return qobject_cast<QQuickAccessibleAttached *>(qmlAttachedPropertiesObject<QQuickAccessibleAttached>(item, true));
}

} // namespace

RLabelBase::RLabelBase(QQuickItem *parent)
    : QQuickLabel(parent)
{
    connect(this, &QQuickText::truncatedChanged, this, [this] { setAcceptHoverEvents(truncated()); });
}

void RLabelBase::setCaption(const QString &caption)
{
    if (m_caption == caption)
        return;
    m_caption = caption;
    showCaption();
    Q_EMIT captionChanged();
}

QString RLabelBase::plainCaption() const
{
    return m_buddy ? withoutMnemonic(m_caption) : m_caption;
}

void RLabelBase::setBuddy(QQuickItem *buddy)
{
    if (m_buddy == buddy)
        return;
    m_buddy = buddy;
    m_givenName.clear();
    setAcceptedMouseButtons(buddy ? Qt::LeftButton : Qt::NoButton);
    showCaption();
    Q_EMIT buddyChanged();
    Q_EMIT captionChanged();
}

void RLabelBase::setRequired(bool required)
{
    if (m_required == required)
        return;
    m_required = required;
    showCaption();
    Q_EMIT requiredChanged();
}

void RLabelBase::setLineVisible(bool visible)
{
    if (m_lineVisible == visible)
        return;
    m_lineVisible = visible;
    updateLine();
    Q_EMIT lineVisibleChanged();
}

void RLabelBase::setLineColor(const QColor &color)
{
    if (m_lineColor == color)
        return;
    m_lineColor = color;
    updateLine();
    Q_EMIT lineColorChanged();
}

void RLabelBase::componentComplete()
{
    QQuickLabel::componentComplete();
    nameItems();
}

void RLabelBase::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickLabel::itemChange(change, data);
    if (change == ItemVisibleHasChanged && m_shortcut)
        m_shortcut->setEnabled(data.boolValue);
}

void RLabelBase::mousePressEvent(QMouseEvent *event)
{
    event->setAccepted(m_buddy);
}

void RLabelBase::mouseReleaseEvent(QMouseEvent *event)
{
    if (contains(event->position()))
        focusBuddy(Qt::MouseFocusReason);
}

void RLabelBase::hoverEnterEvent(QHoverEvent *event)
{
    QQuickLabel::hoverEnterEvent(event);
    if (!m_toolTip)
        m_toolTip = new LateToolTip(*this);
    m_toolTip->show(plainCaption());
}

void RLabelBase::hoverLeaveEvent(QHoverEvent *event)
{
    QQuickLabel::hoverLeaveEvent(event);
    if (m_toolTip)
        m_toolTip->hide();
}

void RLabelBase::showCaption()
{
    const qsizetype mark = m_buddy ? mnemonicPosition(m_caption) : -1;
    const QString star = m_required ? QStringLiteral(" *") : QString();
    takeShortcut(mark < 0 ? QChar() : m_caption[mark + 1]);
    setTextFormat(mark < 0 ? PlainText : StyledText);
    setText((mark < 0 ? plainCaption() : withUnderlinedKey(m_caption, mark)) + star);
    setAcceptHoverEvents(truncated()); // Text decides anew with each text
    if (isComponentComplete())
        nameItems();
}

// A buddy may make its own name only when it is complete, and keeps it.
void RLabelBase::nameItems()
{
    const QString name = plainCaption();
    if (textFormat() == StyledText)
        accessibleOf(this)->setName(name);
    if (!m_buddy || name.isEmpty() || namesItself(*m_buddy))
        return;
    QQuickAccessibleAttached *accessible = accessibleOf(m_buddy);
    if (accessible->name() != std::exchange(m_givenName, name) && !accessible->name().isEmpty())
        m_givenName.clear();
    else
        accessible->setName(name);
}

void RLabelBase::takeShortcut(QChar key)
{
    if (!m_shortcut && key.isNull())
        return;
    if (!m_shortcut) {
        m_shortcut = new QQuickShortcut(this);
        m_shortcut->setEnabled(isVisible());
        QQmlParserStatus *status = m_shortcut;
        status->classBegin();
        status->componentComplete();
        const auto focus = [this] { focusBuddy(Qt::ShortcutFocusReason); };
        connect(m_shortcut, &QQuickShortcut::activated, this, focus);
        // Labels with the same letter take turns.
        connect(m_shortcut, &QQuickShortcut::activatedAmbiguously, this, focus);
    }
    m_shortcut->setSequence(key.isNull() ? QString() : QStringLiteral("Alt+") + key.toUpper());
}

void RLabelBase::updateLine()
{
    if (m_lineVisible && !m_line)
        m_line = makePart(Part::LabelLine);
    if (m_line) {
        m_line->setProperty("visible", m_lineVisible);
        m_line->setProperty("color", m_lineColor);
    }
}

void RLabelBase::focusBuddy(Qt::FocusReason reason)
{
    if (m_buddy && m_buddy->isEnabled())
        m_buddy->forceActiveFocus(reason);
}

QObject *RLabelBase::makePart(Part part)
{
    QQmlEngine *engine = qmlEngine(this);
    const QVariantMap properties{{QStringLiteral("parent"), QVariant::fromValue<QQuickItem *>(this)}};
    return engine ? PartComponents::of(engine).make(part, this, properties) : nullptr;
}

} // namespace tamble::client
