#pragma once

#include <QtQuick/QSGGeometry>
#include <QtQuick/QSGNode>

#include <algorithm>
#include <span>

namespace tamble::client {

/// Number of vertices to allocate for `needed` ones where there are `allocated`.
///
/// Lines change their number of vertices with almost every frame, and each other number is an allocation. So there is
/// some room, and it is given back only when most of it is unused.
constexpr int roomForVertices(int needed, int allocated)
{
    constexpr int step = 256;
    if (needed <= allocated && allocated <= 4 * needed + step)
        return allocated;
    return needed == 0 ? 0 : (needed / step + 1) * step;
}

/// What to mark of a node whose geometry was written. The renderer has a node without vertices in none of its batches,
/// and when it gets some looks for one only if the material is marked, too.
inline QSGNode::DirtyState writtenState(int vertexCountBefore)
{
    return vertexCountBefore == 0 ? QSGNode::DirtyGeometry | QSGNode::DirtyMaterial : QSGNode::DirtyGeometry;
}

/// Puts a triangle strip into a geometry of its vertex type; the rest of the room repeats the last vertex, which draws
/// nothing. Returns what to mark of the node.
template <typename Vertex>
QSGNode::DirtyState storeStrip(QSGGeometry &geometry, std::span<const Vertex> strip)
{
    const int before = geometry.vertexCount();
    const int room = roomForVertices(int(strip.size()), geometry.vertexCount());
    if (room != geometry.vertexCount())
        geometry.allocate(room);
    auto *vertices = static_cast<Vertex *>(geometry.vertexData());
    std::ranges::copy(strip, vertices);
    if (!strip.empty())
        std::fill(vertices + strip.size(), vertices + room, strip.back());
    else
        std::fill(vertices, vertices + room, Vertex());
    return writtenState(before);
}

} // namespace tamble::client
