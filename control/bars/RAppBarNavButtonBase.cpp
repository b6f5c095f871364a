#include "bars/RAppBarNavButtonBase.h"

#include "bars/RAppBarBase.h"
#include "base/Ancestor.h"
#include "base/PartComponents.h"

#include <QtQuick/private/qquickitem_p.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tamble::client {

namespace {

// In density-independent units; longer texts are elided.
constexpr qreal leastWidth = 96.0;
constexpr qreal leastSubWidth = 120.0;
constexpr qreal mostWidth = 240.0;
constexpr qreal margin = 12.0; // at both sides of the text
constexpr qreal compactSize = 48.0;
constexpr qreal subHeight = 32.0;
constexpr qreal roundingError = 1e-6; // pixels, of sums of fractional units

} // namespace

RAppBarNavButtonBase::RAppBarNavButtonBase(QQuickItem *parent)
    : RBarButtonBase(parent)
{}

void RAppBarNavButtonBase::setIconOnly(bool iconOnly)
{
    if (m_isIconOnly == iconOnly)
        return;
    m_isIconOnly = iconOnly;
    updateSize();
    Q_EMIT iconOnlyChanged();
    Q_EMIT textHiddenChanged();
}

void RAppBarNavButtonBase::setUnit(qreal unit)
{
    if (!std::isfinite(unit) || std::exchange(m_unit, unit) == unit)
        return;
    updateSize();
    Q_EMIT unitChanged();
    Q_EMIT iconSpaceChanged();
}

void RAppBarNavButtonBase::setWordsWidth(qreal width)
{
    if (std::exchange(m_wordsWidth, width) == width)
        return;
    updateSize();
    Q_EMIT wordsWidthChanged();
}

qreal RAppBarNavButtonBase::iconSpace() const
{
    if (iconKey().isEmpty())
        return 0.0;
    return (m_isForSubPage ? 24.0 : 32.0) * m_unit; // the icon and a gap of 8
}

qreal RAppBarNavButtonBase::naturalWidth() const
{
    if (QQuickItemPrivate::get(this)->widthValid())
        return width();
    return std::clamp(m_wordsWidth + iconSpace() + 2.0 * margin * m_unit,
                      (m_isForSubPage ? leastSubWidth : leastWidth) * m_unit, mostWidth * m_unit);
}

qreal RAppBarNavButtonBase::compactWidth() const
{
    const bool hasOwnWidth = QQuickItemPrivate::get(this)->widthValid();
    return hasOwnWidth || iconKey().isEmpty() ? naturalWidth() : compactSize * m_unit;
}

void RAppBarNavButtonBase::addSpokenStates(QAccessible::State &state) const
{
    RBarButtonBase::addSpokenStates(state);
    state.selectable = true;
    state.selected = state.checked;
}

// A text that gets its room before it is complete is laid out once, not three times.
void RAppBarNavButtonBase::classBegin()
{
    RBarButtonBase::classBegin();
    updateSize();
}

void RAppBarNavButtonBase::componentComplete()
{
    RBarButtonBase::componentComplete();
    updateSize();
}

void RAppBarNavButtonBase::iconChange()
{
    if (!m_icon && !iconKey().isEmpty())
        m_icon = PartComponents::makeItem(Part::NavIcon, *this);
    updateSize();
    Q_EMIT iconSpaceChanged();
    Q_EMIT textHiddenChanged();
}

void RAppBarNavButtonBase::selectionChange()
{
    if (RAppBarBase *bar = nearestAncestor<RAppBarBase>(*this); bar && isSelected())
        bar->planAgain();
}

void RAppBarNavButtonBase::updateSize()
{
    setLeftPadding(margin * m_unit + (isMirrored() ? 0.0 : iconSpace()));
    setRightPadding(margin * m_unit + (isMirrored() ? iconSpace() : 0.0));
    setImplicitSize(isTextHidden() ? compactWidth() : naturalWidth(),
                    (m_isForSubPage ? subHeight : compactSize) * m_unit);
    if (!isComponentComplete())
        return;
    if (RAppBarBase *bar = nearestAncestor<RAppBarBase>(*this))
        bar->planAgain();
    updateFit();
}

void RAppBarNavButtonBase::updateFit()
{
    // Without a width there is none to fit into yet, and each change lays the text out anew.
    const bool isCramped = width() > 0.0 && !isTextHidden() && m_wordsWidth > availableWidth() + roundingError;
    setShortened(isCramped || isTextHidden());
    if (std::exchange(m_isCramped, isCramped) != isCramped)
        Q_EMIT crampedChanged();
}

void RAppBarNavButtonBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    RBarButtonBase::geometryChange(newGeometry, oldGeometry);
    if (isComponentComplete())
        updateFit();
}

void RAppBarNavButtonBase::mirrorChange()
{
    RBarButtonBase::mirrorChange();
    updateSize();
}

} // namespace tamble::client
