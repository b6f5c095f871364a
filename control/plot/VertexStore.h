#pragma once

#include <QtQuick/QSGGeometry>

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

/// Puts a triangle strip into a geometry of its vertex type; the rest of the room repeats the last vertex, which draws
/// nothing.
template <typename Vertex>
void storeStrip(QSGGeometry &geometry, std::span<const Vertex> strip)
{
    const int room = roomForVertices(int(strip.size()), geometry.vertexCount());
    if (room != geometry.vertexCount())
        geometry.allocate(room);
    auto *vertices = static_cast<Vertex *>(geometry.vertexData());
    std::ranges::copy(strip, vertices);
    if (!strip.empty())
        std::fill(vertices + strip.size(), vertices + room, strip.back());
    else
        std::fill(vertices, vertices + room, Vertex());
}

} // namespace tamble::client
