import QtQuick
import TambleClient.Control 1.0

/*! One cell of a table, for a control of the page's own; name it as `control`. */
RCellBase {
    id: root

    /*! What stands in the cell. */
    default property alias content: root.data

    unit: RThemeValues.unit
}
