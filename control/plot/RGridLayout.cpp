#include "plot/RGridLayout.h"

namespace tamble::client {

RGridLayout::RGridLayout(QObject *parent)
    : QObject(parent)
{
    for (const auto signal :
         {&RGridLayout::positionsChanged, &RGridLayout::majorPositionsChanged, &RGridLayout::colorChanged,
          &RGridLayout::majorColorChanged, &RGridLayout::lineWidthChanged, &RGridLayout::majorLineWidthChanged,
          &RGridLayout::visibleChanged})
        connect(this, signal, this, &RGridLayout::linesChanged);
}

LineFamily RGridLayout::lines() const
{
    return {m_positions, m_majorPositions, m_color, m_majorColor, m_lineWidth, m_majorLineWidth, m_visible};
}

} // namespace tamble::client
