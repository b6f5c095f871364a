#include "accordion/RAccordionHeader.h"

#include "accordion/RAccordionColumn.h"
#include "accordion/RAccordionGrip.h"
#include "base/InputMeaning.h"
#include "scrolling/Positioners.h"

#include <QtCore/QTimerEvent>
#include <QtGui/QKeyEvent>
#include <QtQml/QQmlEngine>
#include <QtQuickTemplates2/private/qquickabstractbutton_p_p.h>

#include <algorithm>
#include <cmath>

namespace tamble::client {

namespace {

// In density-independent units.
constexpr qreal partGap = 8.0;
constexpr qreal iconSize = 24.0;
constexpr qreal gripWidth = 32.0;

} // namespace

RAccordionHeader::RAccordionHeader(QQuickItem *parent)
    : AccordionHeading(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
}

/// Null while the item is being destroyed.
RAccordionItemBase *RAccordionHeader::item() const
{
    return dynamic_cast<RAccordionItemBase *>(parentItem());
}

QColor RAccordionHeader::groundColor() const
{
    return item() ? item()->ssBackground() : QColor(Qt::transparent);
}

QColor RAccordionHeader::textColor() const
{
    return item() ? item()->ssColor() : QColor(Qt::transparent);
}

bool RAccordionHeader::canToggle() const
{
    return item() && item()->isExpandable();
}

bool RAccordionHeader::isOpen() const
{
    return item() && item()->isExpanded();
}

void RAccordionHeader::toggle()
{
    item()->toggle();
}

bool RAccordionHeader::moveBy(int way)
{
    RAccordionColumn *accordion = column();
    return accordion && item() && item()->isDraggable() && accordion->requestMove(*item(), way);
}

bool RAccordionHeader::isDragged() const
{
    return m_grip && m_grip->isDragging();
}

void RAccordionHeader::updateColors()
{
    AccordionHeading::updateColors();
    if (m_grip)
        m_grip->update();
}

QQuickItem *RAccordionHeader::makePart(Part part)
{
    QQmlEngine *engine = qmlEngine(item());
    const QVariantMap properties{{QStringLiteral("parent"), QVariant::fromValue<QQuickItem *>(this)},
                                 {QStringLiteral("item"), QVariant::fromValue(item())}};
    return engine ? qobject_cast<QQuickItem *>(PartComponents::of(engine).make(part, this, properties)) : nullptr;
}

void RAccordionHeader::updateIcon()
{
    if (!isComponentComplete())
        return;
    const bool visible = !item()->iconKey().isEmpty();
    if (visible && !m_icon)
        m_icon = makePart(Part::AccordionIcon);
    if (m_icon)
        m_icon->setVisible(visible);
    placeAll();
}

void RAccordionHeader::updateSubtitle()
{
    if (!isComponentComplete())
        return;
    const bool visible = !item()->subtitle().isEmpty();
    if (visible && !m_subtitle) {
        m_subtitle = makePart(Part::AccordionSubtitle);
        for (QQuickItem *line : {titleItem(), m_subtitle}) {
            if (line)
                connect(line, &QQuickItem::implicitHeightChanged, this, [this] { placeAll(); });
        }
    }
    if (m_subtitle)
        m_subtitle->setVisible(visible);
    placeAll();
}

void RAccordionHeader::updateGrip()
{
    if (!isComponentComplete())
        return;
    if (item()->isDraggable() && !m_grip) {
        m_grip = new RAccordionGrip(this, item());
        connect(m_grip, &DragSource::draggingChanged, this, &RAccordionHeader::draggedChanged);
    }
    if (m_grip)
        m_grip->setVisible(item()->isDraggable());
    placeAll();
}

QQuickItem &RAccordionHeader::extras()
{
    if (!m_extras) {
        // Not by the constructor: in a mirrored page Qt would place items before there is a row.
        auto *row = new QQuickRow;
        row->setParent(this);
        row->setParentItem(this);
        row->setSpacing(partGap / 2.0 * unit());
        m_extras = row;
        connect(row, &QQuickItem::widthChanged, this, [this] { placeAll(); });
        connect(row, &QQuickItem::heightChanged, this, [this] { placeAll(); });
    }
    return *m_extras;
}

void RAccordionHeader::placeParts(qreal begin, qreal end)
{
    const RAccordionItemBase *section = item();
    if (!section)
        return;
    const qreal pause = partGap * unit();
    if (m_icon && !section->iconKey().isEmpty()) {
        place(*m_icon, begin);
        begin += iconSize * unit() + pause;
    }
    if (m_grip && section->isDraggable()) {
        m_grip->setSize({gripWidth * unit(), height()});
        place(*m_grip, width() - m_grip->width());
        end = width() - m_grip->width();
    }
    if (m_extras && m_extras->width() > 0.0) {
        end -= m_extras->width();
        place(*m_extras, end);
        end -= pause;
    }
    AccordionHeading::placeParts(begin, end);
    QQuickItem *title = titleItem();
    if (!title || !m_subtitle || section->subtitle().isEmpty())
        return;
    // As close as the lines of one text, in the middle.
    const qreal upper = title->implicitHeight();
    const qreal lower = m_subtitle->implicitHeight();
    const qreal top = std::max(0.0, std::floor((height() - upper - lower) / 2.0));
    title->setHeight(upper);
    title->setY(top);
    m_subtitle->setSize({title->width(), lower});
    m_subtitle->setPosition({title->x(), top + upper});
}

void RAccordionHeader::componentComplete()
{
    AccordionHeading::componentComplete();
    if (!item())
        return;
    updateIcon();
    updateSubtitle();
    updateGrip();
}

void RAccordionHeader::keyPressEvent(QKeyEvent *event)
{
    if (hasActiveFocus() && asksForMenu(*event))
        askForMenu(boundingRect().center());
    else
        AccordionHeading::keyPressEvent(event);
}

void RAccordionHeader::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton)
        askForMenu(event->position());
    else
        AccordionHeading::mousePressEvent(event);
}

// A held key opens no menu, and where a page has none, a slow click is a click.
void RAccordionHeader::buttonChange(ButtonChange change)
{
    const auto *button = QQuickAbstractButtonPrivate::get(this);
    const bool byPointer = button->pressButtons != Qt::NoButton || button->touchId != -1;
    if (change == ButtonPressedChanged && isPressed() && byPointer && item() && item()->hasContextMenu())
        m_longPress.start(longPressMs, this);
    else if (change == ButtonPressedChanged)
        m_longPress.stop();
    AccordionHeading::buttonChange(change);
}

void RAccordionHeader::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_longPress.timerId()) {
        AccordionHeading::timerEvent(event);
        return;
    }
    m_longPress.stop();
    auto *button = QQuickAbstractButtonPrivate::get(this);
    const QPointF position = button->pressPoint;
    button->handleUngrab(); // no click follows
    askForMenu(position);
}

void RAccordionHeader::askForMenu(const QPointF &position)
{
    if (item())
        Q_EMIT item()->headerContextMenuRequested(position);
}

} // namespace tamble::client
