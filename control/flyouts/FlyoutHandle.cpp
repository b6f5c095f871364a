#include "flyouts/FlyoutHandle.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QStyleHints>

#include <utility>

namespace tamble::client {

FlyoutHandle::FlyoutHandle(QQuickItem *parent)
    : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
}

void FlyoutHandle::setResizes(bool resizes)
{
    if (m_resizes == resizes)
        return;
    m_resizes = resizes;
#if QT_CONFIG(cursor)
    setCursor(resizes ? Qt::SizeFDiagCursor : Qt::ArrowCursor);
#endif
    Q_EMIT resizesChanged();
}

QPointF FlyoutHandle::inLayer(const QPointF &scenePoint) const
{
    return m_flyout->parentItem() ? m_flyout->parentItem()->mapFromScene(scenePoint) : scenePoint;
}

void FlyoutHandle::mousePressEvent(QMouseEvent *event)
{
    const bool mayDrag = m_flyout && (m_resizes || m_flyout->isMovable());
    m_isPressed = mayDrag;
    if (!mayDrag)
        return;
    m_pressed = inLayer(event->scenePosition());
    m_start = QRectF(m_flyout->position(), m_flyout->size());
    m_arrangement = m_flyout->arrangement();
}

void FlyoutHandle::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_isPressed || !m_flyout)
        return;
    const QPointF way = inLayer(event->scenePosition()) - m_pressed;
    if (!m_isDragging && way.manhattanLength() < QGuiApplication::styleHints()->startDragDistance())
        return;
    beginDrag();
    if (m_resizes)
        m_flyout->dragTo(m_start.size() + QSizeF(way.x(), way.y()));
    else
        m_flyout->dragTo(m_start.topLeft() + way);
}

void FlyoutHandle::mouseReleaseEvent(QMouseEvent *)
{
    if (!endDrag() || !m_flyout)
        return;
    if (m_resizes)
        m_flyout->endResize();
    else
        m_flyout->endMove();
}

// As far as it came: whatever has taken the pointer away says nothing about the place.
void FlyoutHandle::mouseUngrabEvent()
{
    mouseReleaseEvent(nullptr);
}

void FlyoutHandle::mouseDoubleClickEvent(QMouseEvent *)
{
    if (m_flyout && !m_resizes)
        m_flyout->setCollapsed(!m_flyout->isCollapsed());
}

void FlyoutHandle::beginDrag()
{
    if (std::exchange(m_isDragging, true))
        return;
    setKeepMouseGrab(true);
    m_watched = window();
    if (m_watched)
        m_watched->installEventFilter(this);
}

bool FlyoutHandle::endDrag()
{
    m_isPressed = false;
    if (!std::exchange(m_isDragging, false))
        return false;
    setKeepMouseGrab(false);
    if (m_watched)
        m_watched->removeEventFilter(this);
    return true;
}

// Before what has the focus: during a drag Esc means that.
bool FlyoutHandle::eventFilter(QObject *window, QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!isKey || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape)
        return QQuickItem::eventFilter(window, event);
    event->accept();
    if (event->type() == QEvent::KeyPress && endDrag()) {
        ungrabMouse();
        if (m_flyout)
            m_flyout->setArrangement(m_arrangement);
    }
    return true;
}

void FlyoutHandle::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemSceneChange)
        endDrag();
    QQuickItem::itemChange(change, data);
}

} // namespace tamble::client
