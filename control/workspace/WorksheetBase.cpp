#include "workspace/WorksheetBase.h"

#include "pointer/RMouseDetection.h"

#include <utility>

namespace tamble::client {

namespace {

WorkspaceBase *firstWorkspaceBelow(const QQuickItem &item)
{
    for (QQuickItem *child : item.childItems()) {
        if (auto *workspace = qobject_cast<WorkspaceBase *>(child))
            return workspace;
        if (auto *workspace = firstWorkspaceBelow(*child))
            return workspace;
    }
    return nullptr;
}

} // namespace

WorksheetBase::WorksheetBase(QQuickItem *parent)
    : QQuickItem(parent)
    , m_detection(new RMouseDetection(this))
{
    connect(m_detection, &RMouseDetection::containsMouseChanged, this, &WorksheetBase::pointerInsideChanged);
    connect(m_detection, &RMouseDetection::mouseXChanged, this, &WorksheetBase::pointerPositionChanged);
    connect(m_detection, &RMouseDetection::mouseYChanged, this, &WorksheetBase::pointerPositionChanged);
}

WorksheetBase::~WorksheetBase()
{
    m_detection->disconnect(this);
    if (m_workspace)
        m_workspace->disconnect(this);
}

void WorksheetBase::setReadOnly(bool readOnly)
{
    if (m_readOnly == readOnly)
        return;
    m_readOnly = readOnly;
    if (m_workspace)
        m_workspace->setReadOnly(readOnly);
    Q_EMIT readOnlyChanged();
}

void WorksheetBase::setModified(bool modified)
{
    if (std::exchange(m_modified, modified) != modified)
        Q_EMIT modifiedChanged();
}

void WorksheetBase::componentComplete()
{
    QQuickItem::componentComplete();
    seekWorkspace();
}

void WorksheetBase::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemChildAddedChange || change == ItemChildRemovedChange)
        seekWorkspace();
}

void WorksheetBase::seekWorkspace()
{
    WorkspaceBase *found = isComponentComplete() ? firstWorkspaceBelow(*this) : nullptr;
    if (m_workspace == found)
        return;
    if (m_workspace)
        m_workspace->disconnect(this);
    m_workspace = found;
    if (found) {
        connect(found, &WorkspaceBase::itemsMoved, this, &WorksheetBase::markModified);
        connect(found, &WorkspaceBase::itemsResized, this, &WorksheetBase::markModified);
        connect(found, &QQuickItem::parentChanged, this, &WorksheetBase::seekWorkspace);
        // The view may move under a pointer that rests.
        connect(found, &WorkspaceBase::pointerPositionChanged, this, &WorksheetBase::pointerPositionChanged);
        // One that the page has made read-only stays so on a page that is not.
        if (m_readOnly)
            found->setReadOnly(true);
    }
    Q_EMIT workspaceChanged();
    Q_EMIT pointerPositionChanged();
}

bool WorksheetBase::pointerInside() const
{
    return m_detection->containsMouse();
}

QPointF WorksheetBase::pointerPosition() const
{
    const QPointF pixel(m_detection->mouseX(), m_detection->mouseY());
    return m_workspace ? m_workspace->mapToPlane(mapToItem(m_workspace, pixel)) : pixel;
}

void WorksheetBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    m_detection->setSize(newGeometry.size());
}

} // namespace tamble::client
