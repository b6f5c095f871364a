#include "accordion/RAccordionGrip.h"

#include "accordion/RAccordionColumn.h"

#include <QtGui/QCursor>
#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGRectangleNode>

#include <algorithm>
#include <cmath>

namespace tamble::client {

namespace {

constexpr int dotColumns = 2;
constexpr int dotRows = 3;
// In density-independent units.
constexpr qreal dotSize = 3.0;
constexpr qreal dotPitch = 6.0;

} // namespace

RAccordionGrip::RAccordionGrip(QQuickItem *header, RAccordionItemBase *item)
    : DragSource(header)
    , m_item(item)
{
    setFlag(ItemHasContents);
    setCursor(Qt::OpenHandCursor);
    setFinger(Finger::BeginsAtOnce);
}

RAccordionGrip::~RAccordionGrip()
{
    cancelDrag();
}

RAccordionItemBase *RAccordionGrip::item() const
{
    return dynamic_cast<RAccordionItemBase *>(m_item.get());
}

QPointF RAccordionGrip::dragMoves(const QPointF &way)
{
    if (RAccordionColumn *accordion = RAccordionColumn::of(m_item))
        accordion->dragTo(*item(), pressedAt() + way);
    return way;
}

bool RAccordionGrip::dragEnds()
{
    RAccordionColumn *accordion = RAccordionColumn::of(m_item);
    return accordion && accordion->drop(*item());
}

void RAccordionGrip::dragIsCanceled()
{
    if (RAccordionColumn *accordion = RAccordionColumn::of(m_item))
        accordion->endDrag();
}

QSGNode *RAccordionGrip::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    QSGNode *node = oldNode ? oldNode : new QSGNode;
    while (node->childCount() < dotColumns * dotRows)
        node->appendChildNode(window()->createRectangleNode());
    const RAccordionItemBase *section = item();
    const qreal unit = section ? section->unit() : 1.0;
    const qreal size = std::max(1.0, std::round(dotSize * unit));
    const qreal pitch = std::round(dotPitch * unit);
    const QPointF corner(std::round((width() - pitch * (dotColumns - 1) - size) / 2.0),
                         std::round((height() - pitch * (dotRows - 1) - size) / 2.0));
    for (int i = 0; i < dotColumns * dotRows; ++i) {
        auto *dot = static_cast<QSGRectangleNode *>(node->childAtIndex(i));
        const QPointF place(pitch * (i % dotColumns), pitch * (i / dotColumns)); // NOLINT(bugprone-integer-division)
        dot->setRect({corner + place, QSizeF(size, size)});
        dot->setColor(section ? section->ssForegroundDragHandle() : QColor());
    }
    return node;
}

} // namespace tamble::client
