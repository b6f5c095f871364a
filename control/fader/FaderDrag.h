#pragma once

namespace tamble::client {

/// Drag of a handle that keeps its distance to the pointer, at full or at reduced speed.
///
/// Pointer places are pixels along the travel, growing towards the upper end; positions are 0 to 1 on the travel,
/// beyond its ends too: a pointer that went too far must come back as far before the handle follows again.
class FaderDrag
{
public:
    /// Takes hold of the handle at `position`.
    void begin(double position, double pointer);

    /// Position that the pointer asks for. `speed` 1 moves the handle as far as the pointer; when it changes, the drag
    /// goes on from `shown`, where the handle is, and from the place the pointer had last.
    double moved(double pointer, double travelLength, double speed, double shown);

    /// The pointer's place when last heard of.
    double pointer() const { return m_pointer; }

private:
    double m_anchorPosition = 0.0;
    double m_anchorPointer = 0.0;
    double m_pointer = 0.0;
    double m_speed = 1.0;
};

} // namespace tamble::client
