#include "fader/FaderDrag.h"

namespace tamble::client {

void FaderDrag::begin(double position, double pointer)
{
    m_anchorPosition = position;
    m_anchorPointer = pointer;
    m_pointer = pointer;
    m_speed = 1.0;
}

double FaderDrag::moved(double pointer, double travelLength, double speed, double shown)
{
    if (speed != m_speed) {
        m_anchorPosition = shown;
        m_anchorPointer = m_pointer;
        m_speed = speed;
    }
    m_pointer = pointer;
    if (!(travelLength > 0.0))
        return m_anchorPosition;
    return m_anchorPosition + (pointer - m_anchorPointer) * speed / travelLength;
}

} // namespace tamble::client
