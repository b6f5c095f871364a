#include "handles/HandleDrag.h"

#include <cmath>

namespace tamble::client {

void HandleDrag::begin(const QPointF &pointer, const QPointF &place, HandleGrip grip, double slack)
{
    *this = HandleDrag();
    m_pressed = m_anchorPointer = m_last = pointer;
    m_start = m_anchorPlace = place;
    m_grip = grip;
    m_slack = slack;
}

std::optional<QPointF> HandleDrag::moved(const QPointF &pointer, const DragKeys &keys)
{
    const QPointF way = pointer - m_pressed;
    if (!m_hasMoved) {
        if (std::hypot(way.x(), way.y()) < m_slack)
            return std::nullopt;
        m_hasMoved = true;
        m_fine = keys.fine;
        if (m_grip == HandleGrip::JumpsUnder && !m_fine)
            m_anchorPlace = m_pressed;
    } else if (keys.fine != m_fine) {
        m_anchorPlace = freePlace(m_last);
        m_anchorPointer = m_last;
        m_fine = keys.fine;
    }
    m_last = pointer;

    QPointF place = freePlace(pointer);
    if (keys.alongAxis) {
        if (std::abs(way.x()) >= std::abs(way.y()))
            place.setY(m_start.y());
        else
            place.setX(m_start.x());
    }
    return place;
}

QPointF HandleDrag::freePlace(const QPointF &pointer) const
{
    return m_anchorPlace + (m_fine ? 0.1 : 1.0) * (pointer - m_anchorPointer);
}

} // namespace tamble::client
