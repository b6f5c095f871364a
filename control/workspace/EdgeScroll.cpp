#include "workspace/EdgeScroll.h"

#include "workspace/EdgeSpeed.h"
#include "workspace/WorkspaceBase.h"

#include <algorithm>

namespace tamble::client {

namespace {

constexpr int stepMs = 16;
// After a long pause of the application the view must not leap.
constexpr double longestStep = 0.1;

} // namespace

EdgeScroll::EdgeScroll(WorkspaceBase &workspace)
    : m_workspace(workspace)
{}

void EdgeScroll::follow(const QPointF &pointer)
{
    m_speed = edgeSpeed(pointer, m_workspace.view().viewport());
    if (m_speed.isNull()) {
        m_timer.stop();
    } else if (!m_timer.isActive()) {
        m_sinceStep.start();
        m_timer.start(stepMs, Qt::PreciseTimer, this);
    }
}

void EdgeScroll::timerEvent(QTimerEvent *)
{
    const double seconds = std::min(double(m_sinceStep.restart()) / 1000.0, longestStep);
    m_workspace.pan(m_speed * seconds);
}

} // namespace tamble::client
