#include "lists/RListViewBase.h"

#include "base/InputMeaning.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtQuick/QQuickWindow>

#include <utility>

namespace tamble::client {

RListViewBase::RListViewBase(QQuickItem *parent)
    : SelectableListView(parent)
    , m_look(*this)
    , m_keys(*this)
    , m_presses(*this)
{
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
    QAccessible::installActivationObserver(this);
}

RListViewBase::~RListViewBase()
{
    QAccessible::removeActivationObserver(this);
}

void RListViewBase::componentComplete()
{
    SelectableListView::componentComplete();
    if (QAccessible::isActive())
        beginToSpeak(*this);
}

void RListViewBase::setTextRole(const QString &role)
{
    if (std::exchange(m_textRole, role) == role)
        return;
    polish();
    Q_EMIT textRoleChanged();
}

void RListViewBase::setHoverEnabled(bool enabled)
{
    if (isHoverEnabled() == enabled)
        return;
    setAcceptHoverEvents(enabled);
    pointAt(std::nullopt);
    Q_EMIT hoverEnabledChanged();
}

void RListViewBase::initItem(int index, QObject *item)
{
    SelectableListView::initItem(index, item);
    auto *row = qobject_cast<QQuickItem *>(item);
    if (row && !isTakingModel())
        m_look.introduceRow(index, *row);
}

void RListViewBase::rowsChange(std::span<const RowChange> leaving, std::span<const RowChange> coming)
{
    m_presses.followRows(leaving, coming);
}

void RListViewBase::rowsReplacement()
{
    m_presses.forgetRows();
    m_keys.forgetLetters();
}

void RListViewBase::rowsSorting()
{
    m_presses.cancel();
}

void RListViewBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    SelectableListView::geometryChange(newGeometry, oldGeometry);
    polish();
}

void RListViewBase::itemChange(ItemChange change, const ItemChangeData &data)
{
    SelectableListView::itemChange(change, data);
    if (m_isDrawn || (change != ItemSceneChange && change != ItemVisibleHasChanged))
        return;
    disconnect(m_frames);
    if (window() && isVisible()) // later: the frame itself does not wait for more rows
        m_frames =
            connect(window(), &QQuickWindow::afterAnimating, this, &RListViewBase::onFrame, Qt::QueuedConnection);
}

void RListViewBase::onFrame()
{
    if (!isVisible() || !isComponentComplete() || std::exchange(m_isDrawn, true))
        return;
    disconnect(m_frames);
    Q_EMIT drawnChanged();
}

void RListViewBase::updatePolish()
{
    SelectableListView::updatePolish();
    m_look.findHoveredRow();
    m_look.showRows();
}

void RListViewBase::keyPressEvent(QKeyEvent *event)
{
    forceLayout(); // what has changed since the last frame counts
    event->setAccepted(m_keys.handle(*event));
}

int RListViewBase::rowBeginningWith(const QString &beginning, int start) const
{
    return listRows().rowBeginningWith(beginning, m_textRole, start);
}

bool RListViewBase::activateCurrent(bool isRepeated)
{
    if (currentRow() < 0 || !isSignalConnected(QMetaMethod::fromSignal(&RListViewBase::activated)))
        return false;
    if (!isRepeated)
        Q_EMIT activated(currentRow());
    return true;
}

int RListViewBase::rowAt(const QPointF &place)
{
    if (!contains(place))
        return -1;
    const QPointF inContent = mapToItem(contentItem(), place);
    return indexAt(inContent.x(), inContent.y());
}

void RListViewBase::click(int row, Qt::KeyboardModifiers modifiers, bool byFinger)
{
    m_keys.forgetLetters();
    editSelection(row, [&](ListSelection &selection) {
        const bool controls = modifiers & Qt::ControlModifier;
        if (modifiers & Qt::ShiftModifier)
            selection.extendTo(row, currentRow(), controls);
        else if (controls || (byFinger && selectionMode() == Multiple))
            selection.toggle(row);
        else
            selection.select(row);
    });
}

void RListViewBase::press(const QQuickItem &row)
{
    forceLayout();
    const QPointF centre = contentItem()->mapFromItem(&row, row.boundingRect().center());
    const int index = indexAt(centre.x(), centre.y());
    if (index >= 0)
        click(index, Qt::NoModifier, selectionMode() == Multiple);
}

void RListViewBase::requestMenu(int row, const QPointF &place)
{
    const QPointer<RListViewBase> guard(this);
    if (row >= 0) {
        editSelection(row, [row](ListSelection &selection) {
            if (!selection.rows().contains(row))
                selection.select(row);
        });
    }
    if (guard)
        Q_EMIT contextMenuRequested(row < 0 ? -1 : currentRow(), place);
}

void RListViewBase::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton) {
        m_presses.rightClick(event->position());
        return;
    }
    m_presses.begin(event->position(), isByFinger(*event));
    m_presses.awaitLongPress();
    SelectableListView::mousePressEvent(event);
    event->accept();
    if (!m_presses.isTouch())
        forceActiveFocus(Qt::MouseFocusReason);
}

void RListViewBase::mouseMoveEvent(QMouseEvent *event)
{
    m_presses.follow(event->position());
    SelectableListView::mouseMoveEvent(event);
}

void RListViewBase::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<RListViewBase> guard(this);
    SelectableListView::mouseReleaseEvent(event);
    if (guard && m_presses.isTouch())
        forceActiveFocus(Qt::MouseFocusReason);
    if (guard)
        m_presses.end(event->position(), event->modifiers());
}

void RListViewBase::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && !isByFinger(*event))
        m_presses.doubleClick(event->position());
}

void RListViewBase::mouseUngrabEvent()
{
    m_presses.cancel();
    SelectableListView::mouseUngrabEvent();
}

void RListViewBase::touchEvent(QTouchEvent *event)
{
    const QPointF place = event->points().first().position();
    const QPointer<RListViewBase> guard(this);
    if (event->type() == QEvent::TouchBegin) {
        m_presses.begin(place, true);
        m_presses.awaitLongPress();
    } else if (event->type() == QEvent::TouchCancel) {
        m_presses.cancel();
    } else {
        m_presses.follow(place);
    }
    SelectableListView::touchEvent(event);
    if (!guard || event->type() != QEvent::TouchEnd || !m_presses.isOpen())
        return;
    forceActiveFocus(Qt::MouseFocusReason);
    if (guard)
        m_presses.end(place, event->modifiers());
}

void RListViewBase::touchUngrabEvent()
{
    m_presses.cancel();
    SelectableListView::touchUngrabEvent();
}

// Of presses that a control in a row takes the list learns here.
bool RListViewBase::childMouseEventFilter(QQuickItem *item, QEvent *event)
{
    const QPointer<RListViewBase> guard(this);
    if (event->isPointerEvent() && contentItem()->isAncestorOf(item))
        m_presses.watch(static_cast<const QPointerEvent &>(*event));
    return !guard || SelectableListView::childMouseEventFilter(item, event);
}

void RListViewBase::timerEvent(QTimerEvent *event)
{
    if (!m_presses.onTimer(*event))
        SelectableListView::timerEvent(event);
}

void RListViewBase::hoverEnterEvent(QHoverEvent *event)
{
    SelectableListView::hoverEnterEvent(event);
    pointAt(event->position());
}

void RListViewBase::hoverMoveEvent(QHoverEvent *event)
{
    SelectableListView::hoverMoveEvent(event);
    pointAt(event->position());
}

void RListViewBase::hoverLeaveEvent(QHoverEvent *event)
{
    SelectableListView::hoverLeaveEvent(event);
    pointAt(std::nullopt);
}

void RListViewBase::pointAt(std::optional<QPointF> place)
{
    if (m_look.pointAt(place))
        polish();
}

void RListViewBase::addSpokenStates(QAccessible::State &state) const
{
    state.multiSelectable = selectionMode() == Multiple;
}

void RListViewBase::accessibilityActiveChanged(bool active)
{
    if (!active || !isComponentComplete())
        return;
    beginToSpeak(*this);
    m_look.introduceRows();
}

} // namespace tamble::client
