#include "accordion/AccordionHeading.h"

#include "accordion/RAccordionColumn.h"
#include "base/Ancestor.h"
#include "base/PartComponents.h"
#include "controls/RTintedImage.h"

#include <QtGui/QKeyEvent>
#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGRectangleNode>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tamble::client {

namespace {

// In density-independent units.
constexpr qreal headingGap = 8.0;
constexpr qreal chevronSize = 16.0;

} // namespace

AccordionHeading::AccordionHeading(QQuickItem *parent)
    : RButtonBase(parent)
{
    setFlag(ItemHasContents);
    setFocusPolicy(Qt::StrongFocus);
    // Titles are names that users give.
    setLiteralText(true);
}

void AccordionHeading::setTitleItem(QQuickItem *item)
{
    if (m_titleItem == item || item == this || (item && item->isAncestorOf(this)))
        return;
    m_titleItem = item;
    if (item)
        item->setParentItem(this);
    placeAll();
    Q_EMIT titleItemChanged();
}

void AccordionHeading::setUnit(qreal unit)
{
    if (std::exchange(m_unit, unit) == unit)
        return;
    updateChevron();
    Q_EMIT unitChanged();
}

void AccordionHeading::setFocusVisible(bool visible)
{
    if (std::exchange(m_focusVisible, visible) == visible)
        return;
    PartComponents::show(m_focusFrame, Part::FocusFrame, *this, visible);
    Q_EMIT focusVisibleChanged();
}

void AccordionHeading::setOpenness(qreal openness)
{
    if (std::exchange(m_openness, openness) != openness)
        turnChevron();
}

void AccordionHeading::updateColors()
{
    update();
    if (m_chevron)
        m_chevron->setTint(textColor());
}

RAccordionColumn *AccordionHeading::column() const
{
    return nearestAncestor<RAccordionColumn>(*this);
}

void AccordionHeading::updateChevron()
{
    if (!isComponentComplete())
        return;
    if (canToggle() && !m_chevron)
        m_chevron = new RTintedImage(this);
    if (m_chevron) {
        m_chevron->setVisible(canToggle());
        m_chevron->setEnlargement(m_unit);
        m_chevron->setSize({chevronSize * m_unit, chevronSize * m_unit});
        m_chevron->setTint(textColor());
        turnChevron();
    }
    placeAll();
}

void AccordionHeading::turnChevron()
{
    if (!m_chevron)
        return;
    const QString side = isMirrored() ? QStringLiteral("left") : QStringLiteral("right");
    m_chevron->setSource(QUrl(QStringLiteral("qrc:/icons/chevron-%1_16x16.png").arg(side)));
    m_chevron->setRotation((isMirrored() ? -90.0 : 90.0) * m_openness);
}

void AccordionHeading::place(QQuickItem &part, qreal begin)
{
    const qreal x = isMirrored() ? width() - begin - part.width() : begin;
    part.setPosition({std::round(x), std::round((height() - part.height()) / 2.0)});
}

void AccordionHeading::placeAll()
{
    if (!isComponentComplete())
        return;
    if (m_chevron)
        place(*m_chevron, headingGap * m_unit);
    const qreal chevronRoom = keepsChevronRoom() ? chevronSize + headingGap : 0.0;
    placeParts((headingGap + chevronRoom) * m_unit, width() - headingGap * m_unit);
}

void AccordionHeading::placeParts(qreal begin, qreal end)
{
    if (!m_titleItem)
        return;
    m_titleItem->setSize({std::max(0.0, end - begin), height()});
    place(*m_titleItem, begin);
}

void AccordionHeading::componentComplete()
{
    RButtonBase::componentComplete();
    updateChevron();
}

void AccordionHeading::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    RButtonBase::geometryChange(newGeometry, oldGeometry);
    placeAll();
    update();
}

void AccordionHeading::mirrorChange()
{
    RButtonBase::mirrorChange();
    turnChevron();
    placeAll();
}

QSGNode *AccordionHeading::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    auto *node = static_cast<QSGRectangleNode *>(oldNode);
    if (!node)
        node = window()->createRectangleNode();
    node->setRect(boundingRect());
    node->setColor(groundColor());
    return node;
}

// What the base asks for with each click.
void AccordionHeading::editSelection(bool)
{
    if (canToggle())
        toggle();
}

/// Whether the key is one of the accordion's.
bool AccordionHeading::answerKey(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
    const int key = event.key();
    if (held == Qt::AltModifier && (key == Qt::Key_Up || key == Qt::Key_Down))
        return moveBy(key == Qt::Key_Up ? -1 : 1);
    if (held != Qt::NoModifier)
        return false;
    if (key == Qt::Key_Right || key == Qt::Key_Left) {
        const bool opens = (key == Qt::Key_Right) != isMirrored();
        if (canToggle() && isOpen() != opens)
            toggle();
        return canToggle();
    }
    RAccordionColumn *accordion = column();
    return accordion && accordion->moveFocus(*this, key);
}

void AccordionHeading::keyPressEvent(QKeyEvent *event)
{
    // A key that a control in the header has left over is not meant for the header.
    if (!hasActiveFocus())
        event->ignore();
    else if (answerKey(*event))
        event->accept();
    else
        RButtonBase::keyPressEvent(event);
}

void AccordionHeading::keyReleaseEvent(QKeyEvent *event)
{
    if (hasActiveFocus())
        RButtonBase::keyReleaseEvent(event);
    else
        event->ignore();
}

QString AccordionHeading::spokenDescription(const QString &given) const
{
    if (!given.isEmpty() || !canToggle())
        return given;
    return isOpen() ? tr("expanded") : tr("collapsed");
}

void AccordionHeading::addSpokenStates(QAccessible::State &state) const
{
    RButtonBase::addSpokenStates(state);
    state.expandable = canToggle();
    state.expanded = canToggle() && isOpen();
    state.collapsed = canToggle() && !isOpen();
}

void AccordionHeading::announceOpen()
{
    QAccessible::State changed;
    changed.expanded = changed.collapsed = true;
    announceStates(*this, changed);
    announce(*this, QAccessible::DescriptionChanged);
}

} // namespace tamble::client
