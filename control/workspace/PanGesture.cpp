#include "workspace/PanGesture.h"

#include "workspace/WorkspaceBase.h"

#include <QtCore/QLineF>

#include <algorithm>

namespace tamble::client {

PanGesture::PanGesture(WorkspaceBase &workspace, const QPointF &pressed)
    : m_workspace(&workspace)
    , m_pressed(pressed)
{}

void PanGesture::follow(const PointerAt &pointer)
{
    if (m_workspace)
        m_workspace->pan(m_workspace->mapFromPlane(m_pressed) - pointer.pixel);
}

PinchGesture::PinchGesture(WorkspaceBase &workspace, const QPointF &first, const QPointF &second)
    : m_workspace(&workspace)
    , m_held(workspace.mapToPlane((first + second) / 2.0))
    , m_distance(std::max(1.0, QLineF(first, second).length()))
    , m_zoom(workspace.zoom())
{}

void PinchGesture::follow(const QPointF &first, const QPointF &second)
{
    if (!m_workspace)
        return;
    const QPointF centre = (first + second) / 2.0;
    m_workspace->zoomTo(m_zoom * QLineF(first, second).length() / m_distance, centre);
    if (m_workspace)
        m_workspace->pan(m_workspace->mapFromPlane(m_held) - centre);
}

} // namespace tamble::client
