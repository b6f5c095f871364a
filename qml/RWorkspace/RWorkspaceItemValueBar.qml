import QtQuick
import TambleClient.Control 1.0

/*! A value of an item on a workspace, such as a load or a level, as a bar. */
RWorkspaceItemValueBarBase {
    id: root

    RStyleSet.typeName: "RWorkspaceItemValueBar"

    implicitWidth: 96 * RThemeValues.unit
    implicitHeight: 6 * RThemeValues.unit
    unit: RThemeValues.unit
}
