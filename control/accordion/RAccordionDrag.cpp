#include "accordion/RAccordionColumn.h"
#include "base/PartComponents.h"
#include "dragging/DragGhost.h"

#include <QtCore/QTimerEvent>
#include <QtQml/QQmlEngine>
#include <QtQml/qqml.h>
#include <QtQuick/QQuickWindow>

#include <algorithm>

// The part of RAccordionColumn that gives sections another place.

namespace tamble::client {

namespace {

constexpr int scrollTickMs = 16;
/// How near to an edge a drag scrolls, and how far with each tick; in pixels.
constexpr qreal scrollZone = 32.0;
constexpr qreal scrollStep = 6.0;

} // namespace

bool RAccordionColumn::requestMove(RAccordionItemBase &item, int way)
{
    const QList<RAccordionItemBase *> all = sections();
    const int from = int(all.indexOf(&item));
    const int to = from + way;
    if (from < 0 || to < 0 || to >= all.size())
        return false;
    m_toReveal = &item;
    Q_EMIT itemMoved(from, to);
    return true;
}

void RAccordionColumn::dragTo(RAccordionItemBase &item, const QPointF &scenePoint)
{
    m_dragged = &item;
    m_pointer = scenePoint;
    m_view.find();
    if (!m_scrolling.isActive())
        m_scrolling.start(scrollTickMs, this);
    showInsertion();
}

bool RAccordionColumn::drop(const RAccordionItemBase &item)
{
    showInsertion(); // where the sections are now
    const std::optional<InsertionPlace> place = m_insertion;
    endDrag();
    const int from = int(sections().indexOf(&item));
    if (!place || from < 0)
        return false;
    const int to = movedTo(from, place->gap);
    if (to != from)
        Q_EMIT itemMoved(from, to);
    return to != from;
}

void RAccordionColumn::endDrag()
{
    m_dragged = nullptr;
    m_insertion.reset();
    m_scrolling.stop();
    if (m_insertionLine)
        m_insertionLine->setVisible(false);
}

std::optional<InsertionPlace> RAccordionColumn::insertionAt(const QPointF &point) const
{
    if (!m_view.visibleRect().contains(point))
        return std::nullopt;
    std::vector<RowSpan> rows;
    int index = 0;
    for (const RAccordionItemBase *item : sections()) {
        if (item->isVisible() && !item->isHiddenByCaption())
            rows.push_back({index, item->y(), item->y() + item->height()});
        ++index;
    }
    return insertionPlace(rows, point.y());
}

void RAccordionColumn::showInsertion()
{
    m_insertion = insertionAt(mapFromScene(m_pointer));
    QQmlEngine *engine = qmlEngine(this);
    if (m_insertion && !m_insertionLine && engine && window()) {
        // Above the picture that is dragged, which is near by.
        const QVariantMap properties{{QStringLiteral("parent"), QVariant::fromValue(window()->contentItem())},
                                     {QStringLiteral("z"), DragGhost::aboveEverything + 1.0}};
        m_insertionLine =
            qobject_cast<QQuickItem *>(PartComponents::of(engine).make(Part::InsertionLine, this, properties));
    }
    if (!m_insertionLine)
        return;
    m_insertionLine->setVisible(m_insertion.has_value());
    if (!m_insertion)
        return;
    const qreal thickness = m_insertionLine->height();
    const QRectF seen = m_view.visibleRect() & boundingRect();
    const qreal lowest = std::max(seen.top(), seen.bottom() - thickness);
    const qreal top = std::clamp(m_insertion->y - thickness / 2.0, seen.top(), lowest);
    const QRectF line = mapRectToScene({0.0, top, width(), thickness});
    m_insertionLine->setPosition(line.topLeft());
    m_insertionLine->setWidth(line.width());
}

void RAccordionColumn::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_scrolling.timerId())
        scrollWhileDragging();
    else
        QQuickColumn::timerEvent(event);
}

void RAccordionColumn::scrollWhileDragging()
{
    if (!m_dragged) {
        endDrag();
        return;
    }
    const QRectF visible = m_view.visibleRect();
    const QPointF point = mapFromScene(m_pointer);
    if (!visible.contains(point))
        return;
    if (point.y() < visible.top() + scrollZone)
        m_view.reveal(QRectF(visible.left(), visible.top() - scrollStep, 1.0, 1.0), {});
    else if (point.y() > visible.bottom() - scrollZone)
        m_view.reveal(QRectF(visible.left(), visible.bottom() + scrollStep - 1.0, 1.0, 1.0), {});
    showInsertion();
}

} // namespace tamble::client
