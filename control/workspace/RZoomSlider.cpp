#include "workspace/RZoomSlider.h"

#include "workspace/ZoomTravel.h"

#include <QtGui/QKeyEvent>

#include <cmath>

namespace tamble::client {

namespace {

ZoomTravel travelOf(const WorkspaceBase &workspace)
{
    return {workspace.minimumZoom(), workspace.maximumZoom()};
}

} // namespace

RZoomSlider::RZoomSlider(QQuickItem *parent)
    : QQuickSlider(parent)
{
    connect(this, &QQuickSlider::moved, this, &RZoomSlider::onMoved);
}

void RZoomSlider::setWorkspace(WorkspaceBase *workspace)
{
    if (m_workspace == workspace)
        return;
    if (m_workspace)
        m_workspace->disconnect(this);
    m_workspace = workspace;
    if (workspace) {
        for (const auto changed :
             {&WorkspaceBase::zoomChanged, &WorkspaceBase::minimumZoomChanged, &WorkspaceBase::maximumZoomChanged})
            connect(workspace, changed, this, &RZoomSlider::follow);
        connect(workspace, &QObject::destroyed, this, &RZoomSlider::onWorkspaceGone);
    }
    follow();
    Q_EMIT workspaceChanged();
}

void RZoomSlider::onWorkspaceGone()
{
    m_workspace.clear();
    follow();
    Q_EMIT workspaceChanged();
}

int RZoomSlider::percent() const
{
    return m_workspace ? int(std::lround(100.0 * m_workspace->zoom())) : 100;
}

void RZoomSlider::follow()
{
    if (m_workspace)
        setValue(travelOf(*m_workspace).placeOf(m_workspace->zoom()));
    Q_EMIT percentChanged();
}

// The handle goes to the zoom that came of it: a detent and the view's limits may hold it.
void RZoomSlider::onMoved()
{
    if (m_workspace)
        zoomTo(travelOf(*m_workspace).zoomAt(position(), isPressed()));
    follow();
}

void RZoomSlider::step(int direction)
{
    if (m_workspace)
        zoomTo(m_workspace->zoom() * std::pow(zoomKeyFactor, direction));
}

void RZoomSlider::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    const bool isLarger = key == Qt::Key_Up || key == (isMirrored() ? Qt::Key_Left : Qt::Key_Right);
    if (isLarger || key == Qt::Key_Down || key == Qt::Key_Left || key == Qt::Key_Right)
        step(isLarger ? 1 : -1);
    else
        QQuickSlider::keyPressEvent(event);
}

void RZoomSlider::zoomTo(double factor)
{
    if (m_workspace)
        m_workspace->zoomTo(factor, m_workspace->boundingRect().center());
}

void RZoomSlider::requestValue(const QVariant &value)
{
    if (!m_workspace)
        return;
    zoomTo(travelOf(*m_workspace).zoomAt(value.toDouble(), false));
    follow();
}

} // namespace tamble::client
