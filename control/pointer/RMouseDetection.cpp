#include "pointer/RMouseDetection.h"

#include "pointer/DetectionWatch.h"

#include <QtCore/QPointer>

namespace tamble::client {

RMouseDetection::RMouseDetection(QQuickItem *parent)
    : QQuickItem(parent)
{
    updateWatched(); // with a parent given here, it has missed to be told
}

RMouseDetection::~RMouseDetection()
{
    if (m_isWatched)
        DetectionWatch::instance().remove(*this);
}

void RMouseDetection::setActive(bool active)
{
    if (m_isActive == active)
        return;
    m_isActive = active;
    const QPointer<RMouseDetection> self(this);
    updateWatched();
    if (self)
        Q_EMIT activeChanged();
}

void RMouseDetection::componentComplete()
{
    QQuickItem::componentComplete();
    updateWatched();
}

void RMouseDetection::itemChange(ItemChange change, const ItemChangeData &data)
{
    const QPointer<RMouseDetection> self(this);
    if (change == ItemSceneChange || change == ItemVisibleHasChanged || change == ItemEnabledHasChanged)
        updateWatched();
    if (self)
        QQuickItem::itemChange(change, data);
}

void RMouseDetection::updateWatched()
{
    const bool isWatched = m_isActive && isComponentComplete() && window() && isVisible() && isEnabled();
    if (isWatched == m_isWatched)
        return;
    m_isWatched = isWatched;
    if (isWatched) {
        DetectionWatch::instance().add(*this);
        return;
    }
    DetectionWatch::instance().remove(*this);
    const QPointer<RMouseDetection> self(this);
    release(Qt::AllButtons);
    if (self)
        setPointer({});
}

void RMouseDetection::setPointer(const std::optional<QPointF> &place)
{
    const QPointF before = m_place;
    m_place = place.value_or(before);
    const bool isOther = std::exchange(m_containsMouse, place.has_value()) != place.has_value();
    tell({{before.x() != m_place.x(), &RMouseDetection::mouseXChanged},
          {before.y() != m_place.y(), &RMouseDetection::mouseYChanged},
          {isOther, place ? &RMouseDetection::entered : &RMouseDetection::exited},
          {isOther, &RMouseDetection::containsMouseChanged}});
}

void RMouseDetection::press(Qt::MouseButton button, bool isInside)
{
    if (!isInside) {
        Q_EMIT pressedOutside();
        return;
    }
    const bool wasPressed = pressedInside();
    m_pressed |= button;
    tell({{!wasPressed, &RMouseDetection::pressedInsideChanged}});
}

void RMouseDetection::release(Qt::MouseButtons buttons)
{
    const bool wasPressed = pressedInside();
    m_pressed &= ~buttons;
    tell({{wasPressed != pressedInside(), &RMouseDetection::pressedInsideChanged}});
}

/// Emits the signals of those that are true, unless a listener of one deletes the item.
void RMouseDetection::tell(std::initializer_list<std::pair<bool, Signal>> news)
{
    const QPointer<RMouseDetection> self(this);
    for (const auto &[isNew, signal] : news) {
        if (isNew && self)
            Q_EMIT(this->*signal)();
    }
}

} // namespace tamble::client
