import QtQuick
import TambleClient.Control 1.0

/*! Raster of a table, in the sizes of the theme. */
RCellGridPropertiesBase {
    columnWidth: 144 * RThemeValues.unit
    rowHeight: 32 * RThemeValues.unit
    spacing: RThemeValues.gap
    padding: 4 * RThemeValues.unit
}
