#include "cells/RCellGridPropertiesBase.h"

namespace tamble::client {

RCellGridPropertiesBase::RCellGridPropertiesBase(QObject *parent)
    : QObject(parent)
{
    measure();
    using Raster = RCellGridPropertiesBase;
    for (const auto change :
         {&Raster::columnWidthChanged, &Raster::rowHeightChanged, &Raster::columnWidthsChanged,
          &Raster::rowHeightsChanged, &Raster::spacingChanged, &Raster::paddingChanged, &Raster::headerRowsChanged,
          &Raster::headerColumnsChanged, &Raster::lineVisibleChanged, &Raster::lineWidthChanged})
        connect(this, change, this, &Raster::measure);
}

void RCellGridPropertiesBase::measure()
{
    m_columns = CellTracks(m_columnWidth, m_columnWidths, m_spacing);
    m_rows = CellTracks(m_rowHeight, m_rowHeights, m_spacing);
    Q_EMIT rasterChanged();
}

} // namespace tamble::client
