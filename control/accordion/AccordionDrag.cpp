#include "accordion/AccordionDrag.h"

#include "accordion/RAccordionColumn.h"
#include "base/PartComponents.h"
#include "dragging/DragGhost.h"

#include <QtQml/QQmlEngine>
#include <QtQml/qqml.h>
#include <QtQuick/QQuickWindow>

#include <algorithm>

namespace tamble::client {

namespace {

constexpr int scrollTickMs = 16;
/// How near to an edge a drag scrolls, and how far with each tick; in pixels.
constexpr qreal scrollZone = 32.0;
constexpr qreal scrollStep = 6.0;

} // namespace

AccordionDrag::AccordionDrag(RAccordionColumn &column, EnclosingView &view)
    : m_column(column)
    , m_view(view)
{}

void AccordionDrag::moveTo(RAccordionItemBase &item, const QPointF &scenePoint)
{
    m_dragged = &item;
    m_pointer = scenePoint;
    m_view.find();
    if (!m_scrolling.isActive())
        m_scrolling.start(scrollTickMs, this);
    follow();
}

std::optional<InsertionPlace> AccordionDrag::drop()
{
    follow(); // where the sections are now
    const std::optional<InsertionPlace> place = m_insertion;
    end();
    return place;
}

void AccordionDrag::end()
{
    m_dragged = nullptr;
    m_insertion.reset();
    m_scrolling.stop();
    if (m_line)
        m_line->setVisible(false);
}

std::optional<InsertionPlace> AccordionDrag::insertionAt(const QPointF &point) const
{
    if (!m_view.visibleRect().contains(point))
        return std::nullopt;
    std::vector<RowSpan> rows;
    int index = 0;
    for (const RAccordionItemBase *item : m_column.sections()) {
        if (item->isVisible() && !item->isHiddenByCaption())
            rows.push_back({index, item->y(), item->y() + item->height()});
        ++index;
    }
    return insertionPlace(rows, point.y());
}

void AccordionDrag::follow()
{
    m_insertion = insertionAt(m_column.mapFromScene(m_pointer));
    QQmlEngine *engine = qmlEngine(&m_column);
    if (m_insertion && !m_line && engine && m_column.window()) {
        // Above the picture that is dragged, which is near by.
        const QVariantMap properties{{QStringLiteral("parent"), QVariant::fromValue(m_column.window()->contentItem())},
                                     {QStringLiteral("z"), DragGhost::aboveEverything + 1.0}};
        m_line =
            qobject_cast<QQuickItem *>(PartComponents::of(engine).make(Part::InsertionLine, &m_column, properties));
    }
    if (!m_line)
        return;
    m_line->setVisible(m_insertion.has_value());
    if (!m_insertion)
        return;
    const qreal thickness = m_line->height();
    const QRectF seen = m_view.visibleRect() & m_column.boundingRect();
    const qreal lowest = std::max(seen.top(), seen.bottom() - thickness);
    const qreal top = std::clamp(m_insertion->y - thickness / 2.0, seen.top(), lowest);
    const QRectF line = m_column.mapRectToScene({0.0, top, m_column.width(), thickness});
    m_line->setPosition(line.topLeft());
    m_line->setWidth(line.width());
}

void AccordionDrag::timerEvent(QTimerEvent *)
{
    if (!m_dragged) {
        end();
        return;
    }
    const QRectF visible = m_view.visibleRect();
    const QPointF point = m_column.mapFromScene(m_pointer);
    if (!visible.contains(point))
        return;
    if (point.y() < visible.top() + scrollZone)
        m_view.reveal(QRectF(visible.left(), visible.top() - scrollStep, 1.0, 1.0), {});
    else if (point.y() > visible.bottom() - scrollZone)
        m_view.reveal(QRectF(visible.left(), visible.bottom() + scrollStep - 1.0, 1.0, 1.0), {});
    follow();
}

} // namespace tamble::client
