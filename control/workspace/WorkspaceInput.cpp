#include "workspace/WorkspaceInput.h"

#include "base/InputMeaning.h"
#include "workspace/MoveGesture.h"
#include "workspace/ResizeGesture.h"
#include "workspace/RubberBandGesture.h"
#include "workspace/WorkspaceBase.h"
#include "workspace/WorkspaceItemBase.h"
#include "workspace/ZoomTravel.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QGuiApplication>
#include <QtGui/QStyleHints>
#include <QtGui/QTouchEvent>
#include <QtGui/QWheelEvent>

#include <cmath>
#include <utility>

namespace tamble::client {

namespace {

constexpr double gripPixels = 12.0;
constexpr double fingerGripPixels = 32.0;
constexpr double wheelStep = 120.0; // in eighths of a degree
constexpr double wheelPanPixels = 64.0;
constexpr double tapSlack = 24.0;

bool isFar(const QPointF &way)
{
    return way.manhattanLength() >= QGuiApplication::styleHints()->startDragDistance();
}

} // namespace

WorkspaceInput::WorkspaceInput(WorkspaceBase &workspace)
    : m_workspace(workspace)
    , m_nudge(workspace)
    , m_edgeScroll(workspace)
{}

void WorkspaceInput::press(const PointerAt &pointer, Qt::MouseButton button, bool isByFinger)
{
    const QPointer<WorkspaceInput> self(this);
    const bool isSecondButton = m_press.has_value();
    cancelPointer();
    if (isSecondButton || !self)
        return;
    m_nudge.finish();
    if (self)
        m_workspace.forceActiveFocus(Qt::MouseFocusReason);
    if (!self)
        return;
    m_pointer = pointer;
    Press press{pointer, m_workspace.mapToPlane(pointer.pixel), button, isByFinger};
    const bool pans = button == Qt::MiddleButton || (button == Qt::LeftButton && m_isSpaceHeld);
    if (pans) {
        m_press = press;
        m_hasPanned = true;
        m_gesture = std::make_shared<PanGesture>(m_workspace, press.point);
        return;
    }
    const double grip = isByFinger ? fingerGripPixels : gripPixels;
    press.item = m_workspace.itemWithGripAt(press.point, grip);
    press.isOnGrip = press.item != nullptr;
    if (!press.item)
        press.item = static_cast<WorkspaceItemBase *>(m_workspace.itemAt(press.point));
    press.isOnItem = press.item != nullptr;
    press.wasSelected = press.item && press.item->selected();
    m_press = press;
    if (isByFinger)
        m_longPress.start(longPressMs, this);
    if (press.item)
        pressItem(press);
}

void WorkspaceInput::pressItem(const Press &press)
{
    const QPointer<WorkspaceInput> self(this);
    if (press.item->isSelectable() && !press.wasSelected) {
        auto mode = RWorkspaceSelection::Replace;
        if (press.button == Qt::LeftButton && press.at.modifiers & Qt::ControlModifier)
            mode = RWorkspaceSelection::Toggle;
        else if (press.button == Qt::LeftButton && press.at.modifiers & Qt::ShiftModifier)
            mode = RWorkspaceSelection::Add;
        m_workspace.selection()->select(press.item, mode);
    }
    if (self && press.item)
        m_workspace.setCurrentItem(press.item);
}

void WorkspaceInput::move(const PointerAt &pointer)
{
    m_pointer = pointer;
    if (!m_gesture && m_press && isFar(pointer.pixel - m_press->at.pixel))
        beginGesture();
    follow();
}

void WorkspaceInput::beginGesture()
{
    m_longPress.stop();
    const QPointer<WorkspaceInput> self(this);
    auto gesture = gestureOf(*m_press);
    if (self && m_press)
        m_gesture = std::move(gesture);
}

std::shared_ptr<WorkspaceGesture> WorkspaceInput::gestureOf(const Press &press) const
{
    if (press.button != Qt::LeftButton)
        return nullptr;
    if (press.item && press.item->workspace() == &m_workspace && !m_workspace.readOnly()) {
        if (press.isOnGrip)
            return std::make_shared<ResizeGesture>(m_workspace, *press.item, press.point);
        if (press.item->canBeMoved()) {
            auto items = m_workspace.selectedToMove();
            if (!items.contains(press.item))
                items = {press.item};
            return std::make_shared<MoveGesture>(m_workspace, *press.item, items, press.point);
        }
    }
    if (press.isByFinger && !press.isLong)
        return std::make_shared<PanGesture>(m_workspace, press.point);
    if (!press.isOnItem)
        return std::make_shared<RubberBandGesture>(m_workspace, press.point);
    return nullptr;
}

void WorkspaceInput::follow()
{
    // A gesture that scrolls the view is told of that as well.
    if (!m_gesture || m_isFollowing)
        return;
    const auto gesture = m_gesture;
    if (gesture->scrollsAtEdges())
        m_edgeScroll.follow(m_pointer.pixel);
    const QPointer<WorkspaceInput> self(this);
    m_isFollowing = true;
    gesture->follow(m_pointer);
    if (self)
        m_isFollowing = false;
}

void WorkspaceInput::viewChange()
{
    follow();
}

void WorkspaceInput::release(const PointerAt &pointer)
{
    const QPointer<WorkspaceInput> self(this);
    m_pointer = pointer;
    m_longPress.stop();
    follow();
    if (!self)
        return;
    m_edgeScroll.stop();
    const auto press = std::exchange(m_press, std::nullopt);
    if (const auto gesture = std::exchange(m_gesture, nullptr))
        gesture->finish();
    else if (press && !isFar(m_pointer.pixel - press->at.pixel))
        press->isByFinger ? tap(*press) : click(*press);
}

void WorkspaceInput::click(const Press &press)
{
    const QPointer<WorkspaceBase> workspace(&m_workspace);
    if (press.button == Qt::RightButton || press.isLong) {
        const QString id = press.item ? press.item->itemId().toString(QUuid::WithoutBraces) : QString();
        Q_EMIT m_workspace.contextMenuRequested(press.point, id);
        return;
    }
    if (press.isSecond || press.button != Qt::LeftButton)
        return;
    const bool controls = press.at.modifiers & Qt::ControlModifier;
    const bool shifts = press.at.modifiers & Qt::ShiftModifier;
    if (!press.isOnItem) {
        if (!controls && !shifts)
            m_workspace.selection()->clear();
        if (workspace)
            Q_EMIT workspace->backgroundClicked(press.point);
        return;
    }
    if (press.item && press.wasSelected && !shifts)
        m_workspace.selection()->select(press.item,
                                        controls ? RWorkspaceSelection::Remove : RWorkspaceSelection::Replace);
    if (press.item)
        Q_EMIT press.item->clicked();
}

// Touches that are taken do not become double clicks of the mouse.
void WorkspaceInput::tap(const Press &press)
{
    const bool isSecond = m_sinceTap.isValid() &&
                          m_sinceTap.elapsed() < QGuiApplication::styleHints()->mouseDoubleClickInterval() &&
                          (press.at.pixel - m_tapped).manhattanLength() < tapSlack;
    if (isSecond) {
        m_sinceTap.invalidate();
        m_press = press;
        const QPointer<WorkspaceInput> self(this);
        doubleClick();
        if (self)
            m_press.reset();
        return;
    }
    m_sinceTap.start();
    m_tapped = press.at.pixel;
    click(press);
}

void WorkspaceInput::doubleClick()
{
    if (!m_press || m_press->button != Qt::LeftButton || m_gesture)
        return;
    m_press->isSecond = true;
    const QPointer<WorkspaceBase> workspace(&m_workspace);
    const QPointer<WorkspaceItemBase> item = m_press->item;
    if (!m_press->isOnItem) {
        Q_EMIT m_workspace.backgroundDoubleClicked(m_press->point);
    } else if (item) {
        Q_EMIT item->doubleClicked();
        if (workspace && item)
            Q_EMIT workspace->itemActivated(item->itemId().toString(QUuid::WithoutBraces));
    }
}

void WorkspaceInput::touch(const QTouchEvent &event)
{
    QList<QPointF> fingers;
    for (const QEventPoint &point : event.points()) {
        if (point.state() != QEventPoint::Released)
            fingers.append(point.position());
    }
    if (fingers.size() >= 2) {
        const QPointer<WorkspaceInput> self(this);
        const bool isAnother = std::exchange(m_fingers, fingers.size()) != fingers.size();
        if (isAnother)
            cancelPointer();
        if (!self)
            return;
        if (isAnother || !m_pinch)
            m_pinch.emplace(m_workspace, fingers[0], fingers[1]);
        else
            PinchGesture(*m_pinch).follow(fingers[0], fingers[1]);
        return;
    }
    m_fingers = fingers.size();
    if (m_pinch) {
        // The last finger of a pinch does nothing more.
        if (fingers.isEmpty())
            m_pinch.reset();
        return;
    }
    const QEventPoint &point = event.points().first();
    const PointerAt pointer{point.position(), event.modifiers()};
    if (point.state() == QEventPoint::Pressed)
        press(pointer, Qt::LeftButton, true);
    else if (point.state() == QEventPoint::Released)
        release(pointer);
    else
        move(pointer);
}

void WorkspaceInput::wheel(const QWheelEvent &event)
{
    const QPointF angle = event.angleDelta();
    if (event.modifiers() & Qt::ControlModifier) {
        m_workspace.zoomTo(m_workspace.zoom() * std::pow(zoomKeyFactor, angle.y() / wheelStep), event.position());
        return;
    }
    QPointF way = event.pixelDelta();
    if (way.isNull())
        way = angle / wheelStep * wheelPanPixels;
    if (event.modifiers() & Qt::ShiftModifier)
        way = QPointF(way.x() + way.y(), 0.0);
    m_hasPanned = true;
    m_workspace.pan(-way);
}

void WorkspaceInput::holdSpace(bool isHeld)
{
    m_isSpaceHeld = isHeld;
    m_hasPanned = m_hasPanned && !isHeld;
}

void WorkspaceInput::cancelPointer()
{
    m_longPress.stop();
    m_edgeScroll.stop();
    m_press.reset();
    if (const auto gesture = std::exchange(m_gesture, nullptr))
        gesture->cancel();
}

void WorkspaceInput::cancel()
{
    const QPointer<WorkspaceInput> self(this);
    m_pinch.reset();
    cancelPointer();
    if (self)
        m_nudge.cancel();
}

void WorkspaceInput::timerEvent(QTimerEvent *)
{
    m_longPress.stop();
    if (!m_press || m_gesture)
        return;
    m_press->isLong = true;
    // On the background a drag may follow, which draws the rubber band.
    if (m_press->isOnItem)
        click(*std::exchange(m_press, std::nullopt));
}

} // namespace tamble::client
