#include "cells/RCellGridPropertiesBase.h"

namespace tamble::client {

RCellGridPropertiesBase::RCellGridPropertiesBase(QObject *parent)
    : QObject(parent)
{
    const auto measure = [this] {
        m_columns = CellTracks(m_columnWidth, m_columnWidths, m_spacing);
        m_rows = CellTracks(m_rowHeight, m_rowHeights, m_spacing);
    };
    measure();
    connect(this, &RCellGridPropertiesBase::rasterChanged, this, measure);
}

} // namespace tamble::client
