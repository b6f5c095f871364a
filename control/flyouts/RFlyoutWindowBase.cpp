#include "flyouts/RFlyoutWindowBase.h"

#include "base/ControlLog.h"
#include "scrolling/EnclosingView.h"

#include <QtGui/QKeyEvent>
#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>

#include <utility>

namespace tamble::client {

RFlyoutWindowBase::RFlyoutWindowBase(QQuickItem *parent)
    : FloatingPane(parent)
{
    setVisible(false);
    setFiltersChildMouseEvents(true);
    followFocus(window());
}

// The window tells of the focus when nothing of this is left.
RFlyoutWindowBase::~RFlyoutWindowBase()
{
    followFocus(nullptr);
    giveFocusBack();
}

void RFlyoutWindowBase::setPinned(bool pinned)
{
    if (m_isPinned == pinned)
        return;
    m_isPinned = pinned;
    Q_EMIT pinnedChanged();
}

void RFlyoutWindowBase::setContentComponent(QQmlComponent *component)
{
    if (m_contentComponent == component)
        return;
    m_contentComponent = component;
    if (m_madeContent)
        m_madeContent->deleteLater();
    m_madeContent = nullptr;
    if (isShown())
        makeContent();
    Q_EMIT contentComponentChanged();
}

void RFlyoutWindowBase::open()
{
    if (!enterLayer())
        return;
    if (!isShown())
        recall();
    show();
}

void RFlyoutWindowBase::openAt(QQuickItem *item, Qt::Edge edge)
{
    if (!enterLayer())
        return;
    recall(item, edge);
    show();
}

void RFlyoutWindowBase::show()
{
    const QPointer<RFlyoutWindowBase> guard(this);
    if (!isShown())
        closeGroup(); // whose handlers may do anything
    if (!guard || !layer())
        return;
    const bool isNew = setShown(true);
    makeContent();
    updateHeader();
    setVisible(true);
    arrange();
    raise();
    takeFocus(Qt::PopupFocusReason);
    if (!isNew)
        return;
    Q_EMIT shownChanged();
    if (guard)
        Q_EMIT flyoutOpened();
}

void RFlyoutWindowBase::closeGroup()
{
    if (m_group.isEmpty())
        return;
    QList<QPointer<RFlyoutWindowBase>> others;
    for (FloatingPane *pane : shownIn(*layer())) {
        auto *flyout = qobject_cast<RFlyoutWindowBase *>(pane);
        if (flyout && flyout != this && flyout->m_group == m_group && !flyout->m_isPinned)
            others.append(flyout);
    }
    for (const auto &flyout : std::as_const(others)) {
        if (flyout)
            flyout->close();
    }
}

void RFlyoutWindowBase::close()
{
    if (!setShown(false))
        return;
    giveFocusBack();
    setVisible(false);
    setFocus(false, Qt::PopupFocusReason);
    const QPointer<RFlyoutWindowBase> guard(this);
    Q_EMIT shownChanged();
    if (guard)
        Q_EMIT flyoutClosed();
}

bool RFlyoutWindowBase::focusNext(const QQuickItem &layer)
{
    for (FloatingPane *pane : shownIn(layer)) {
        auto *flyout = qobject_cast<RFlyoutWindowBase *>(pane);
        if (!flyout || flyout->hasActiveFocus())
            continue;
        flyout->raise();
        flyout->takeFocus(Qt::OtherFocusReason);
        return true;
    }
    return false;
}

void RFlyoutWindowBase::takeFocus(Qt::FocusReason reason)
{
    if (!window() || hasActiveFocus())
        return;
    m_formerFocus = window()->activeFocusItem();
    forceActiveFocus(reason);
}

void RFlyoutWindowBase::giveFocusBack()
{
    const QPointer<QQuickItem> former = std::exchange(m_formerFocus, nullptr);
    const QQuickWindow *window = former && former->isVisible() && former->isEnabled() ? former->window() : nullptr;
    if (!window || !window->contentItem()) // of a window that is being destroyed
        return;
    // A flyout that has been taken out of the window has lost the focus already, to nobody.
    const QQuickItem *focused = window->activeFocusItem();
    const bool wasLast = !this->window() && hasFocus() && (!focused || focused->isAncestorOf(former));
    if (wasLast || (hasActiveFocus() && this->window() == window))
        former->forceActiveFocus(Qt::PopupFocusReason);
}

void RFlyoutWindowBase::makeContent()
{
    if (!m_contentComponent || m_madeContent || !m_contentParent)
        return;
    QQmlContext *context = m_contentComponent->creationContext();
    QObject *made = m_contentComponent->beginCreate(context ? context : qmlContext(this));
    if (!made) {
        qCWarning(controlLog).noquote() << m_contentComponent->errorString();
        return;
    }
    made->setParent(this);
    if (auto *item = qobject_cast<QQuickItem *>(made))
        item->setParentItem(m_contentParent);
    m_madeContent = made;
    m_contentComponent->completeCreate();
}

void RFlyoutWindowBase::itemChange(ItemChange change, const ItemChangeData &data)
{
    FloatingPane::itemChange(change, data);
    // Later, since a layer that is being destroyed is no time for handlers.
    if (change == ItemParentHasChanged && !data.item)
        QMetaObject::invokeMethod(this, &RFlyoutWindowBase::close, Qt::QueuedConnection);
    else if (change == ItemSceneChange)
        followFocus(data.window);
}

void RFlyoutWindowBase::followFocus(QQuickWindow *window)
{
    if (m_window)
        m_window->disconnect(this);
    m_window = window;
    if (m_window)
        connect(m_window, &QQuickWindow::activeFocusItemChanged, this, &RFlyoutWindowBase::revealFocus);
}

/// Scrolls to what the Tab key has reached.
void RFlyoutWindowBase::revealFocus()
{
    const QQuickItem *focused = isShown() && m_window ? m_window->activeFocusItem() : nullptr;
    if (!focused || !m_contentParent || !m_contentParent->isAncestorOf(focused))
        return;
    QQuickItem *view = contentItem();
    if (view->inherits("QQuickFlickable"))
        EnclosingView::reveal(*view, view->mapRectFromItem(focused, focused->boundingRect()), {});
}

bool RFlyoutWindowBase::childMouseEventFilter(QQuickItem *child, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin) {
        raise();
        takeFocus(Qt::MouseFocusReason);
    }
    return FloatingPane::childMouseEventFilter(child, event);
}

void RFlyoutWindowBase::mousePressEvent(QMouseEvent *event)
{
    raise();
    takeFocus(Qt::MouseFocusReason);
    FloatingPane::mousePressEvent(event);
}

/// From what is no stop itself, such as the flyout that was just opened, Qt would go to the first stop of the window.
bool RFlyoutWindowBase::walkOn(const QKeyEvent &event) const
{
    const bool isBack = event.key() == Qt::Key_Backtab;
    QQuickItem *focused = window() ? window()->activeFocusItem() : nullptr;
    if (!focused || (!isBack && (event.key() != Qt::Key_Tab || event.modifiers() != Qt::NoModifier)))
        return false;
    QQuickItem *next = focused->nextItemInFocusChain(!isBack);
    if (!next || next == focused)
        return false;
    next->forceActiveFocus(isBack ? Qt::BacktabFocusReason : Qt::TabFocusReason);
    return true;
}

void RFlyoutWindowBase::keyPressEvent(QKeyEvent *event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (event->key() == Qt::Key_Escape && modifiers == Qt::NoModifier && m_isClosable) {
        event->accept();
        if (!event->isAutoRepeat())
            close();
    } else if (event->key() == Qt::Key_F6 && modifiers == Qt::ControlModifier && layer()) {
        event->accept();
        focusNext(*layer());
    } else if ((event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) && modifiers == Qt::AltModifier) {
        event->accept();
        setCollapsed(event->key() == Qt::Key_Up);
    } else if (moveByKey(*event) || walkOn(*event)) {
        event->accept();
    } else {
        FloatingPane::keyPressEvent(event);
    }
}

} // namespace tamble::client
