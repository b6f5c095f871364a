#include "workspace/RubberBandGesture.h"

#include "workspace/RWorkspaceSelection.h"
#include "workspace/WorkspaceBase.h"
#include "workspace/WorkspaceItemBase.h"
#include "workspace/WorkspaceItems.h"

#include <QtCore/QSet>

#include <utility>

namespace tamble::client {

RubberBandGesture::RubberBandGesture(WorkspaceBase &workspace, const QPointF &pressed)
    : m_workspace(&workspace)
    , m_earlierCurrent(qobject_cast<WorkspaceItemBase *>(workspace.selection()->current()))
    , m_pressed(pressed)
{
    for (WorkspaceItemBase *item : workspace.selection()->selected())
        m_earlier.append(item);
}

QList<WorkspaceItemBase *> RubberBandGesture::earlier() const
{
    QList<WorkspaceItemBase *> items;
    for (const auto &item : m_earlier) {
        if (item && item->workspace() && item->workspace()->selection() == m_workspace->selection() &&
            item->isShownByItself())
            items.append(item);
    }
    return items;
}

void RubberBandGesture::follow(const PointerAt &pointer)
{
    if (!m_workspace || m_isOver)
        return;
    const QRectF band = QRectF(m_pressed, m_workspace->mapToPlane(pointer.pixel)).normalized();
    m_workspace->showRubberBand(band);
    if (!m_workspace || m_isOver)
        return;
    const bool adds = pointer.modifiers & Qt::ShiftModifier;
    const bool toggles = pointer.modifiers & Qt::ControlModifier;
    const auto met = m_workspace->placed().selectableIn(band, pointer.modifiers & Qt::AltModifier);
    QList<WorkspaceItemBase *> target;
    if (adds || toggles) {
        const QSet<WorkspaceItemBase *> isMet(met.begin(), met.end());
        for (WorkspaceItemBase *item : earlier()) {
            if (adds || !isMet.contains(item))
                target.append(item);
        }
    }
    const QList<WorkspaceItemBase *> before = adds || toggles ? earlier() : QList<WorkspaceItemBase *>();
    const QSet<WorkspaceItemBase *> wasSelected(before.begin(), before.end());
    for (WorkspaceItemBase *item : met) {
        if (!wasSelected.contains(item))
            target.append(item);
    }
    m_workspace->selection()->assign(target, nullptr);
}

void RubberBandGesture::finish()
{
    if (!std::exchange(m_isOver, true) && m_workspace)
        m_workspace->showRubberBand({});
}

void RubberBandGesture::cancel()
{
    if (std::exchange(m_isOver, true) || !m_workspace)
        return;
    m_workspace->showRubberBand({});
    if (m_workspace)
        m_workspace->selection()->assign(earlier(), m_earlierCurrent);
}

} // namespace tamble::client
