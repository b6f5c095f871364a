#include "accordion/RAccordionItemBase.h"

#include "accordion/RAccordionColumn.h"
#include "base/ControlLog.h"
#include "style/StyleSetProps.h"

#include <QtCore/QEasingCurve>
#include <QtCore/QMetaMethod>
#include <QtQml/QQmlContext>
#include <QtQml/qqml.h>
#include <QtQuick/QQuickWindow>
#include <QtQuick/private/qquickitem_p.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tamble::client {

namespace {

constexpr int openingMs = 150;
// In density-independent units.
constexpr qreal headerHeight = 32.0;
constexpr qreal bodyPadding = 8.0;

constexpr std::array accordionColorSignals = {
    &RAccordionItemBase::ssBackgroundChanged,
    &RAccordionItemBase::ssColorChanged,
    &RAccordionItemBase::ssForegroundDragHandleChanged,
};

QQmlListProperty<QObject> dataOf(QQuickItem &item)
{
    return QQuickItemPrivate::get(&item)->data();
}

} // namespace

const std::array<SheetColors::Source, RAccordionItemBase::ColorCount> RAccordionItemBase::colorSources = {{
    {&StyleSetProps::background},
    {&StyleSetProps::foreground},
    {&StyleSetProps::foregroundDragHandle},
}};

RAccordionItemBase::RAccordionItemBase(QQuickItem *parent)
    : QQuickItem(parent)
    , m_colors(*this, colorSources, [this](std::size_t begin, std::size_t end) { tellColors(begin, end); })
{
    setFlag(ItemIsFocusScope);
}

RAccordionItemBase::~RAccordionItemBase()
{
    if (m_body)
        m_body->disconnect(this);
    if (m_motion)
        m_motion->disconnect(this);
}

void RAccordionItemBase::tellColors(std::size_t begin, std::size_t end)
{
    if (m_header)
        m_header->updateColors();
    for (std::size_t i = begin; i < end; ++i)
        Q_EMIT(this->*accordionColorSignals[i])();
}

RAccordionColumn *RAccordionItemBase::accordion() const
{
    return dynamic_cast<RAccordionColumn *>(parentItem());
}

void RAccordionItemBase::setTitle(const QString &title)
{
    if (std::exchange(m_title, title) == title)
        return;
    if (m_header)
        m_header->setText(title);
    Q_EMIT titleChanged();
}

void RAccordionItemBase::setSubtitle(const QString &subtitle)
{
    if (std::exchange(m_subtitle, subtitle) == subtitle)
        return;
    if (m_header)
        m_header->updateSubtitle();
    Q_EMIT subtitleChanged();
}

void RAccordionItemBase::setIconKey(const QString &key)
{
    if (std::exchange(m_iconKey, key) == key)
        return;
    if (m_header)
        m_header->updateIcon();
    Q_EMIT iconKeyChanged();
}

void RAccordionItemBase::setExpandable(bool expandable)
{
    if (std::exchange(m_isExpandable, expandable) == expandable)
        return;
    if (m_header)
        m_header->updateExpandable();
    Q_EMIT expandableChanged();
}

bool RAccordionItemBase::isDraggable() const
{
    const RAccordionColumn *around = accordion();
    return around && m_givenDraggable.value_or(around->isReorderable());
}

void RAccordionItemBase::setDraggable(bool draggable)
{
    m_givenDraggable = draggable;
    followAccordion();
}

void RAccordionItemBase::resetDraggable()
{
    m_givenDraggable.reset();
    followAccordion();
}

void RAccordionItemBase::followAccordion()
{
    if (std::exchange(m_wasDraggable, isDraggable()) == isDraggable())
        return;
    if (m_header)
        m_header->updateGrip();
    Q_EMIT draggableChanged();
}

void RAccordionItemBase::setHeader(RAccordionHeader *header)
{
    if (m_header == header)
        return;
    m_header = header;
    if (header) {
        m_colors.setControl(*header);
        header->setParentItem(this);
        header->setFocus(true);
        header->setText(m_title);
        header->setUnit(m_unit);
    }
    placeBody();
    Q_EMIT headerChanged();
}

void RAccordionItemBase::setUnit(qreal unit)
{
    if (std::exchange(m_unit, unit) == unit)
        return;
    if (m_header)
        m_header->setUnit(unit);
    placeBody();
    Q_EMIT unitChanged();
}

QQmlListProperty<QObject> RAccordionItemBase::content()
{
    return dataOf(body());
}

QQmlListProperty<QObject> RAccordionItemBase::headerContent()
{
    return dataOf(m_header ? m_header->extras() : body());
}

bool RAccordionItemBase::hasContextMenu() const
{
    return isSignalConnected(QMetaMethod::fromSignal(&RAccordionItemBase::headerContextMenuRequested));
}

QQuickItem &RAccordionItemBase::body()
{
    if (!m_body) {
        m_frame = new QQuickItem(this);
        m_frame->setVisible(false);
        m_body = new QQuickItem(m_frame);
        m_body->childrenRect(); // is told of from now on
        connect(m_body, &QQuickItem::childrenRectChanged, this, [this] { placeBody(); });
    }
    return *m_body;
}

void RAccordionItemBase::setLazyContent(QQmlComponent *component)
{
    if (m_lazyContent == component)
        return;
    m_lazyContent = component;
    if (m_isExpanded && isComponentComplete())
        makeLazyItem();
    Q_EMIT lazyContentChanged();
}

void RAccordionItemBase::makeLazyItem()
{
    if (!m_lazyContent || m_lazyItem)
        return;
    QQmlContext *context = m_lazyContent->creationContext() ? m_lazyContent->creationContext() : qmlContext(this);
    const QPointer<RAccordionItemBase> guard(this);
    QObject *made = m_lazyContent->isReady() ? m_lazyContent->beginCreate(context) : nullptr;
    m_lazyItem = qobject_cast<QQuickItem *>(made);
    if (!m_lazyItem) {
        qCWarning(controlLog).noquote() << "WARN: RAccordionItem cannot make lazyContent:"
                                        << m_lazyContent->errorString();
        if (made)
            m_lazyContent->completeCreate();
        delete made;
        return;
    }
    m_lazyItem->setParent(this);
    m_lazyItem->setParentItem(&body());
    m_lazyContent->completeCreate();
    if (!guard)
        return;
    m_lazyItemFillsWidth = m_lazyItem && !QQuickItemPrivate::get(m_lazyItem.get())->widthValid();
    placeBody();
    Q_EMIT lazyItemChanged();
}

void RAccordionItemBase::setExpanded(bool expanded)
{
    if (std::exchange(m_isExpanded, expanded) == expanded)
        return;
    if (!isComponentComplete()) {
        Q_EMIT expandedChanged();
        return;
    }
    const QPointer<RAccordionItemBase> guard(this);
    if (!expanded)
        giveFocusToHeader();
    if (m_header)
        m_header->updateExpanded();
    if (expanded)
        makeLazyItem();
    if (!guard)
        return;
    move();
    Q_EMIT expandedChanged();
    if (guard && accordion())
        accordion()->tellExpanded(*this);
}

void RAccordionItemBase::toggle()
{
    const QPointer<RAccordionItemBase> guard(this);
    setExpanded(!m_isExpanded);
    if (guard)
        Q_EMIT toggled(m_isExpanded);
}

// What is not seen must not take keys.
void RAccordionItemBase::giveFocusToHeader()
{
    const QQuickItem *focused = scopedFocusItem();
    if (m_header && m_body && focused && m_body->isAncestorOf(focused))
        m_header->setFocus(true, Qt::OtherFocusReason);
}

/// The body goes where `expanded` says.
void RAccordionItemBase::move()
{
    const qreal end = m_isExpanded ? 1.0 : 0.0;
    const bool isAnimated = !accordion() || accordion()->isAnimated();
    if (!isAnimated || !isVisible() || !window() || m_isHiddenByCaption) {
        if (m_motion)
            m_motion->stop();
        setOpenness(end);
        return;
    }
    if (!m_motion) {
        m_motion = new QVariantAnimation(this);
        m_motion->setDuration(openingMs);
        m_motion->setEasingCurve(QEasingCurve::OutCubic);
        connect(m_motion, &QVariantAnimation::valueChanged, this,
                [this](const QVariant &openness) { setOpenness(openness.toReal()); });
    }
    m_motion->stop();
    m_motion->setStartValue(m_openness);
    m_motion->setEndValue(end);
    m_motion->start();
}

void RAccordionItemBase::setOpenness(qreal openness)
{
    m_openness = openness;
    if (m_header)
        m_header->setOpenness(openness);
    placeBody();
}

void RAccordionItemBase::setHiddenByCaption(bool hidden)
{
    if (std::exchange(m_isHiddenByCaption, hidden) == hidden)
        return;
    if (m_header)
        m_header->setVisible(!hidden);
    placeBody();
}

void RAccordionItemBase::componentComplete()
{
    QQuickItem::componentComplete();
    followAccordion();
    if (!m_isExpanded) {
        placeBody();
        return;
    }
    const QPointer<RAccordionItemBase> guard(this);
    makeLazyItem();
    if (!guard)
        return;
    setOpenness(1.0);
    if (accordion())
        accordion()->tellExpanded(*this);
}

void RAccordionItemBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.width() != oldGeometry.width())
        placeBody();
}

void RAccordionItemBase::placeBody()
{
    if (!isComponentComplete())
        return;
    const qreal top = m_isHiddenByCaption ? 0.0 : headerHeight * m_unit;
    if (m_header)
        m_header->setSize({width(), headerHeight * m_unit});
    if (!m_body) {
        setImplicitHeight(top);
        return;
    }
    const bool isSeen = m_openness > 0.0 && !m_isHiddenByCaption;
    const qreal padding = bodyPadding * m_unit;
    m_body->setPosition({padding, padding});
    m_body->setWidth(std::max(0.0, width() - 2.0 * padding));
    if (m_lazyItem && m_lazyItemFillsWidth)
        m_lazyItem->setWidth(m_body->width());
    const qreal contentHeight = std::max(0.0, m_body->childrenRect().bottom());
    m_body->setHeight(contentHeight);
    const qreal fullHeight = contentHeight > 0.0 ? contentHeight + 2.0 * padding : 0.0;
    m_frame->setY(top);
    m_frame->setSize({width(), std::round(fullHeight * m_openness)});
    m_frame->setClip(m_openness < 1.0);
    m_frame->setVisible(isSeen);
    setImplicitHeight(top + (isSeen ? m_frame->height() : 0.0));
}

} // namespace tamble::client
