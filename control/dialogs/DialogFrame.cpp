#include "dialogs/DialogFrame.h"

#include "base/ItemListening.h"
#include "base/PartComponents.h"
#include "dialogs/RDialogBase.h"
#include "dialogs/RDialogBody.h"

#include <QtCore/QScopedValueRollback>
#include <QtQml/qqml.h>
#include <QtQuickTemplates2/private/qquickscrollbar_p.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tamble::client {

namespace {

// In density-independent units.
constexpr qreal leastFrameWidth = 400.0;
constexpr qreal bodyMargin = 16.0;
constexpr qreal scrolledLine = 32.0;

} // namespace

DialogFrame::DialogFrame(QQuickItem *parent)
    : QQuickRectangle(parent)
    , m_view(new QQuickFlickable(this))
    , m_border(new QQuickRectangle(this))
{
    m_view->setBoundsBehavior(QQuickFlickable::StopAtBounds);
    m_border->setColor(Qt::transparent);
}

DialogFrame::~DialogFrame()
{
    listen(false);
}

RDialogBase *DialogFrame::dialog() const
{
    return m_dialog;
}

void DialogFrame::setDialog(RDialogBase *dialog)
{
    m_dialog = dialog;
}

void DialogFrame::setHeader(DialogHeader *header)
{
    if (m_header || !header)
        return;
    m_header = header;
    header->setParentItem(this);
}

void DialogFrame::setFooter(DialogFooter *footer)
{
    if (m_footer || !footer)
        return;
    m_footer = footer;
    footer->setParentItem(this);
}

void DialogFrame::setUnit(qreal unit)
{
    if (std::isfinite(unit) && std::exchange(m_unit, unit) != unit)
        refresh();
}

void DialogFrame::setBody(RDialogBody &body)
{
    m_body = &body;
    body.setParentItem(m_view->contentItem());
    connect(&body, &RDialogBody::reachChanged, this, &DialogFrame::layOut);
    listen(true);
    refresh();
}

void DialogFrame::componentComplete()
{
    QQuickRectangle::componentComplete();
    if (!m_dialog || !m_header || !m_footer)
        return;
    m_header->setDialog(*m_dialog);
    m_header->stackBefore(m_border);
    m_footer->stackBefore(m_header);
    m_view->stackBefore(m_footer);
}

void DialogFrame::listen(bool on)
{
    listenTo(m_body, *this, QQuickItemPrivate::ImplicitWidth | QQuickItemPrivate::ImplicitHeight, on);
    listenTo(m_header ? m_header->words() : nullptr, *this, QQuickItemPrivate::ImplicitWidth, on);
    if (m_footer)
        m_footer->setListener(on ? this : nullptr);
}

void DialogFrame::itemImplicitWidthChanged(QQuickItem *item)
{
    // The others make the header or the footer ask for more.
    if (item == m_body)
        measure();
    else
        refresh();
}

// Not while it is made, nor while the dialog goes.
bool DialogFrame::isWhole() const
{
    return m_dialog && m_header && m_footer && m_body;
}

qreal DialogFrame::margin() const
{
    return bodyMargin * m_unit;
}

// The buttons bring their own.
qreal DialogFrame::lowerMargin() const
{
    return m_footer->height() > 0.0 ? 0.0 : margin();
}

void DialogFrame::refresh()
{
    if (!isWhole())
        return;
    setColor(m_dialog->ssBackground());
    m_border->border()->setColor(m_dialog->ssBorderColor());
    m_border->border()->setWidth(m_unit);
    m_view->setEnabled(!m_dialog->isBusy());
    m_footer->setEnabled(!m_dialog->isBusy());
    PartComponents::show(m_veil, Part::DialogVeil, *this, m_dialog->isBusy());
    if (m_veil)
        m_veil->stackBefore(m_footer);
    m_header->refresh(m_unit);
    m_footer->layOut(m_dialog->maximumWidth(), m_unit);
    measure();
}

void DialogFrame::measure()
{
    if (!isWhole())
        return;
    const qreal width = std::max({leastFrameWidth * m_unit, m_header->implicitWidth(), m_footer->implicitWidth(),
                                  m_body->implicitWidth() + 2.0 * margin()});
    const qreal height = m_header->height() + m_footer->height() + m_body->implicitHeight() + margin() + lowerMargin();
    setImplicitSize(std::ceil(std::min(width, m_dialog->maximumWidth())),
                    std::ceil(std::min(height, m_dialog->maximumHeight())));
    layOut();
}

void DialogFrame::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickRectangle::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        layOut();
}

void DialogFrame::layOut()
{
    if (!isWhole())
        return;
    m_border->setSize(size());
    m_header->setWidth(width());
    m_footer->setY(height() - m_footer->height());
    m_footer->setWidth(width());
    m_view->setY(m_header->height());
    m_view->setSize({width(), std::max(0.0, m_footer->y() - m_view->y())});

    m_body->setPosition({margin(), margin()});
    m_body->setSize({m_view->width() - 2.0 * margin(),
                     std::max(m_body->implicitHeight(), m_view->height() - margin() - lowerMargin())});
    // What cannot be narrower than the window lets it be is reached all the same.
    m_view->setContentWidth(std::max(m_view->width(), m_body->reach() + 2.0 * margin()));
    m_view->setContentHeight(m_body->height() + margin() + lowerMargin());
    const bool scrolls = m_view->contentHeight() > m_view->height() || m_view->contentWidth() > m_view->width();
    m_view->setInteractive(scrolls);
    m_view->setClip(scrolls);
    showScrollBars(scrolls && m_dialog->isVisible());
}

// Nearly all dialogs show what is in them at once.
void DialogFrame::showScrollBars(bool shown)
{
    // As they are made they may lay out the frame again.
    if (m_isMakingBars)
        return;
    const QScopedValueRollback making(m_isMakingBars, true);
    const bool isMade = m_scrollBars != nullptr;
    PartComponents::show(m_scrollBars, Part::DialogScrollBars, *this, shown);
    if (!m_scrollBars)
        return;
    if (!isMade) {
        m_scrollBars->stackAfter(m_view);
        auto *attached = qobject_cast<QQuickScrollBarAttached *>(qmlAttachedPropertiesObject<QQuickScrollBar>(m_view));
        attached->setVertical(m_scrollBars->property("vertical").value<QQuickScrollBar *>());
        attached->setHorizontal(m_scrollBars->property("horizontal").value<QQuickScrollBar *>());
    }
    m_scrollBars->setProperty("hasRoomBelow", m_footer->height() > 0.0);
    m_scrollBars->setPosition(m_view->position());
    m_scrollBars->setSize(m_view->size());
}

void DialogFrame::bringIntoView(const QRectF &area)
{
    const qreal lowest = area.bottom() + 2.0 * margin() - m_view->height();
    const qreal rightmost = area.right() + 2.0 * margin() - m_view->width();
    const auto within = [](qreal wanted, qreal room, qreal seen) {
        return std::max(0.0, std::min(wanted, room - seen));
    };
    m_view->setContentY(
        within(std::min(area.y(), std::max(m_view->contentY(), lowest)), m_view->contentHeight(), m_view->height()));
    m_view->setContentX(
        within(std::min(area.x(), std::max(m_view->contentX(), rightmost)), m_view->contentWidth(), m_view->width()));
}

void DialogFrame::scrollBy(qreal lines)
{
    const qreal lowest = m_view->contentHeight() - m_view->height();
    m_view->setContentY(std::max(0.0, std::min(lowest, m_view->contentY() + scrolledLine * m_unit * lines)));
}

} // namespace tamble::client
