#include "controls/RControlBackground.h"

#include "base/PartComponents.h"

#include <QtCore/QScopedValueRollback>

namespace tamble::client {

RControlBackground::RControlBackground(QQuickItem *parent)
    : QQuickRectangle(parent)
{}

void RControlBackground::setLineVisible(bool visible)
{
    if (m_lineVisible == visible)
        return;
    m_lineVisible = visible;
    if (visible)
        line();
    Q_EMIT lineVisibleChanged();
}

QQuickRectangle *RControlBackground::line()
{
    // The bar reads `lineVisible`, whose binding may then be evaluated for the first time.
    if (m_line || m_isMakingLine)
        return m_line;
    const QScopedValueRollback making(m_isMakingLine, true);
    m_line = qobject_cast<QQuickRectangle *>(PartComponents::makeItem(Part::ControlLine, *this));
    return m_line;
}

void RControlBackground::setFocusVisible(bool visible)
{
    if (m_focusVisible == visible)
        return;
    m_focusVisible = visible;
    PartComponents::show(m_focusFrame, Part::FocusFrame, *this, visible);
    Q_EMIT focusVisibleChanged();
}

} // namespace tamble::client
