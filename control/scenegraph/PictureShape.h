#pragma once

namespace tamble::client {

class PictureCanvas;

/// A node that can be drawn without shaders as well. Nodes of geometry are this beside what they are to the scene
/// graph.
class PictureShape
{
public:
    virtual ~PictureShape() = default;

    /// Draws what the node's geometry and material would.
    virtual void paint(PictureCanvas &canvas) const = 0;
};

} // namespace tamble::client
