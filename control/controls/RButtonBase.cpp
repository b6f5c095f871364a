#include "controls/RButtonBase.h"

#include "base/Mnemonic.h"
#include "base/PendingValue.h"
#include "style/StyleSet.h"
#include "style/StyleSetProps.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QStyleHints>
#include <QtGui/private/qguiapplication_p.h>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQml/qqml.h>
#include <QtQuickTemplates2/private/qquickabstractbutton_p_p.h>

#include <array>
#include <utility>

namespace tamble::client {

/// Knows which releases click: the template calls nextCheckState() for the others as well.
class RButtonBasePrivate : public QQuickAbstractButtonPrivate
{
    Q_DECLARE_PUBLIC(RButtonBase)

public:
    bool handleRelease(const QPointF &point, ulong timestamp) override
    {
        Q_Q(RButtonBase);
        q->m_clickFollows = pressed && !wasDoubleClick && !isSecondTap(timestamp);
        // The template clicks nothing for a press that was held.
        const bool heldBefore = wasHeld;
        wasHeld = wasHeld || (q->m_clickFollows && q->holdsBackClick());
        const bool handled = QQuickAbstractButtonPrivate::handleRelease(point, timestamp);
        wasHeld = heldBefore;
        q->m_clickFollows = true;
        return handled;
    }

private:
    // As the template judges.
    bool isSecondTap(ulong timestamp)
    {
        return touchId != -1 && lastTouchReleaseTimestamp != 0 &&
               qreal(timestamp) - lastTouchReleaseTimestamp <
                   QGuiApplication::styleHints()->mouseDoubleClickInterval() &&
               isDoubleClickConnected();
    }
};

namespace {

quint64 spaceReleasedAt = 0; // ms of the window system's clock

// Sent again and again while Space is held. A button answers once, when it is let go: what it does may get loud.
bool repeatsSpace(const QKeyEvent &event)
{
    if (event.key() != Qt::Key_Space || event.isAutoRepeat())
        return event.key() == Qt::Key_Space;
    if (event.type() == QEvent::KeyRelease)
        spaceReleasedAt = event.timestamp();
    // X11 under load passes repetitions off as releases and new presses, but both then have the same time. The press
    // may reach another button, such as a question that the release has opened.
    return event.type() == QEvent::KeyPress && event.timestamp() != 0 && event.timestamp() == spaceReleasedAt;
}

} // namespace

RButtonBase::RButtonBase(QQuickItem *parent)
    : QQuickAbstractButton(*new RButtonBasePrivate, parent)
{}

RButtonBase::~RButtonBase()
{
    if (m_styleSet)
        m_styleSet->setFollower(nullptr);
}

void RButtonBase::setSelectable(bool selectable)
{
    if (m_selectable == selectable)
        return;
    m_selectable = selectable;
    announceState();
    Q_EMIT selectableChanged();
}

void RButtonBase::setSelected(bool selected)
{
    if (m_selected == selected)
        return;
    m_selected = selected;
    announceState();
    feedStates();
    selectionChange();
    Q_EMIT selectedChanged();
}

void RButtonBase::setConsistent(bool consistent)
{
    if (m_consistent == consistent)
        return;
    m_consistent = consistent;
    announceState();
    announce(*this, QAccessible::DescriptionChanged);
    feedStates();
    selectionChange();
    Q_EMIT consistentChanged();
}

void RButtonBase::setLiteralText(bool literal)
{
    if (m_literalText == literal)
        return;
    m_literalText = literal;
    useText();
    Q_EMIT literalTextChanged();
}

QString RButtonBase::plainText() const
{
    return m_literalText ? text() : withoutMnemonic(text());
}

StyleSetProps &RButtonBase::sheetProps()
{
    if (!m_styleSet) {
        m_styleSet = static_cast<StyleSet *>(qmlAttachedPropertiesObject<StyleSet>(this));
        m_styleSet->setFollower(this);
    }
    return *m_styleSet->props();
}

template <typename Value>
Value RButtonBase::followed(std::optional<Value> &known, Value (StyleSetProps::*read)())
{
    if (!known)
        known = (sheetProps().*read)();
    return *known;
}

QColor RButtonBase::sheetBackground()
{
    return followed(m_sheetBackground, &StyleSetProps::background);
}

QColor RButtonBase::sheetColor()
{
    return followed(m_sheetColor, &StyleSetProps::foreground);
}

QColor RButtonBase::sheetLineColor()
{
    return followed(m_sheetLineColor, &StyleSetProps::line);
}

bool RButtonBase::sheetLineVisible()
{
    return followed(m_sheetLineVisible, &StyleSetProps::lineVisible);
}

void RButtonBase::onStyleChanged()
{
    StyleSetProps &props = *m_styleSet->props();
    const auto update = [&](auto &known, auto read, auto changed) {
        if (!known)
            return;
        const auto value = (props.*read)();
        if (std::exchange(*known, value) != value)
            Q_EMIT(this->*changed)();
    };
    update(m_sheetBackground, &StyleSetProps::background, &RButtonBase::sheetBackgroundChanged);
    update(m_sheetColor, &StyleSetProps::foreground, &RButtonBase::sheetColorChanged);
    update(m_sheetLineColor, &StyleSetProps::line, &RButtonBase::sheetLineColorChanged);
    update(m_sheetLineVisible, &StyleSetProps::lineVisible, &RButtonBase::sheetLineVisibleChanged);
    styleChange();
}

bool RButtonBase::event(QEvent *event)
{
    Q_D(const RButtonBase);
    switch (event->type()) {
    case QEvent::Shortcut:
        // The template answers its key without the selection.
        if (static_cast<QShortcutEvent *>(event)->shortcutId() != d->shortcutId)
            break;
        click();
        return true;
    case QEvent::ShortcutOverride:
        // Before whatever Esc closes around the button.
        if (static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape || !canTakeBack())
            break;
        event->accept();
        return true;
    default:
        break;
    }
    return QQuickAbstractButton::event(event);
}

bool RButtonBase::canTakeBack() const
{
    Q_D(const RButtonBase);
    return d->pressed && d->pressButtons == Qt::NoButton && d->touchId == -1;
}

void RButtonBase::takeBack()
{
    Q_D(RButtonBase);
    d->handleUngrab();
}

void RButtonBase::keyPressEvent(QKeyEvent *event)
{
    if (repeatsSpace(*event)) {
        event->accept();
    } else if (event->key() == Qt::Key_Escape && canTakeBack()) {
        takeBack();
        event->accept();
    } else {
        QQuickAbstractButton::keyPressEvent(event);
    }
}

void RButtonBase::keyReleaseEvent(QKeyEvent *event)
{
    Q_D(RButtonBase);
    // Without a press there is nothing to let go: it was taken back, or was another item's.
    if (repeatsSpace(*event) || (event->key() == Qt::Key_Space && !isPressed())) {
        event->accept();
        return;
    }
    if (event->key() == Qt::Key_Space && holdsBackClick()) {
        d->handleUngrab();
        event->accept();
        return;
    }
    const bool isEnter = event->key() == Qt::Key_Enter || event->key() == Qt::Key_Return;
    if (!m_enterClicks || !isEnter || event->isAutoRepeat()) {
        QQuickAbstractButton::keyReleaseEvent(event);
        return;
    }
    event->accept();
    if (!m_useCustomEvent) {
        click();
    } else if (!holdsBackClick()) {
        Q_EMIT customEventActivated();
    }
}

void RButtonBase::click()
{
    if (!isEnabled() || holdsBackClick())
        return;
    nextCheckState();
    Q_EMIT clicked();
}

void RButtonBase::nextCheckState()
{
    if (m_clickFollows && (m_consistent || !m_asksWhenMixed))
        editSelection(!m_consistent || !m_selected);
    QQuickAbstractButton::nextCheckState();
}

void RButtonBase::buttonChange(ButtonChange change)
{
    if (change == ButtonTextChange) {
        useText();
        return;
    }
    if (change == ButtonPressedChanged)
        announceState();
    QQuickAbstractButton::buttonChange(change);
}

// In place of the template, which takes a key for any "&", and reads it out.
void RButtonBase::useText()
{
    const qsizetype mark = m_literalText ? -1 : mnemonicPosition(text());
    setShortcut(mark < 0 ? QKeySequence() : QKeySequence(Qt::ALT | Qt::Key(text()[mark + 1].toUpper().unicode())));
    clickOncePerKey();
    announce(*this, QAccessible::NameChanged);
    Q_EMIT plainTextChanged();
}

// All but "pressed": of `down` only a signal tells, and a connection takes more than a binding.
void RButtonBase::feedStates()
{
    const std::array<FedStates::State, 5> states = {{
        {StateHelper::Hovered, isHovered()},
        {StateHelper::Disabled, !isEnabled()},
        {StateHelper::Selected, m_selected},
        {StateHelper::Inconsistent, !m_consistent},
        {StateHelper::Focus, hasActiveFocus()},
    }};
    m_states.feed(*this, states);
}

void RButtonBase::hoverChange()
{
    QQuickAbstractButton::hoverChange();
    feedStates();
}

void RButtonBase::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickAbstractButton::itemChange(change, data);
    if (change == ItemActiveFocusHasChanged || change == ItemEnabledHasChanged)
        feedStates();
    if (change == ItemVisibleHasChanged)
        clickOncePerKey();
}

// The template takes its key anew whenever it is shown; held, that key would click again and again.
void RButtonBase::clickOncePerKey()
{
    Q_D(RButtonBase);
    if (d->shortcutId != 0)
        QGuiApplicationPrivate::instance()->shortcutMap.setShortcutAutoRepeat(false, d->shortcutId, this);
}

// In place of the template, which makes an attached object to tell what the button tells itself.
void RButtonBase::accessibilityActiveChanged(bool active)
{
    if (active)
        beginToSpeak(*this);
}

QString RButtonBase::spokenDescription(const QString &given) const
{
    return given.isEmpty() && !m_consistent ? tr("mixed") : given;
}

void RButtonBase::addSpokenStates(QAccessible::State &state) const
{
    state.pressed = isDown();
    state.checkable = state.checkable || m_selectable || m_selected;
    state.checked = m_consistent && m_selected;
    state.checkStateMixed = !m_consistent;
}

bool RButtonBase::pressBySpeech()
{
    click();
    return true;
}

void RButtonBase::announceState()
{
    QAccessible::State changed;
    changed.checkable = changed.checked = changed.checkStateMixed = changed.pressed = changed.selected = true;
    announceStates(*this, changed);
}

// A page may bind the selection to a device, which answers late; the edit steps in front of the binding meanwhile.
void RButtonBase::editSelection(bool selected)
{
    if (!m_selectable)
        return;
    if (!m_pendingSelection)
        m_pendingSelection = new PendingValue(this, QStringLiteral("selected"));
    m_pendingSelection->setSettleTime(m_settleTime);
    const QPointer<RButtonBase> guard(this);
    m_pendingSelection->show(selected);
    Q_EMIT selectionEdited(selected);
    if (guard)
        m_pendingSelection->commit();
}

} // namespace tamble::client
