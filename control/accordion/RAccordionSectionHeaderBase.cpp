#include "accordion/RAccordionSectionHeaderBase.h"

#include "accordion/RAccordionColumn.h"

#include <utility>

namespace tamble::client {

RAccordionSectionHeaderBase::RAccordionSectionHeaderBase(QQuickItem *parent)
    : AccordionHeading(parent)
{
    setOpenness(1.0);
    setFocusPolicy(Qt::NoFocus);
    setAcceptedMouseButtons(Qt::NoButton);
    setAcceptTouchEvents(false);
    connect(this, &RButtonBase::ssBackgroundChanged, this, &AccordionHeading::updateColors);
    connect(this, &RButtonBase::ssColorChanged, this, &AccordionHeading::updateColors);
}

RAccordionSectionHeaderBase::~RAccordionSectionHeaderBase()
{
    disconnect(this, nullptr, this, nullptr);
}

void RAccordionSectionHeaderBase::setCollapsible(bool collapsible)
{
    if (std::exchange(m_isCollapsible, collapsible) == collapsible)
        return;
    if (!collapsible)
        setFocus(false);
    setFocusPolicy(collapsible ? Qt::StrongFocus : Qt::NoFocus);
    setAcceptedMouseButtons(collapsible ? Qt::LeftButton : Qt::NoButton);
    setAcceptTouchEvents(collapsible);
    updateChevron();
    updateItems();
    Q_EMIT collapsibleChanged();
}

void RAccordionSectionHeaderBase::setCollapsed(bool collapsed)
{
    if (std::exchange(m_isCollapsed, collapsed) == collapsed)
        return;
    updateItems();
    Q_EMIT collapsedChanged();
}

void RAccordionSectionHeaderBase::updateItems()
{
    setOpenness(hidesItems() ? 0.0 : 1.0);
    announceOpen();
    if (RAccordionColumn *accordion = column())
        accordion->regroup();
}

void RAccordionSectionHeaderBase::toggle()
{
    const QPointer<RAccordionSectionHeaderBase> guard(this);
    setCollapsed(!m_isCollapsed);
    if (guard)
        Q_EMIT toggled(m_isCollapsed);
}

} // namespace tamble::client
