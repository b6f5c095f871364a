import QtQuick
import TambleClient.Control 1.0

/*! Canvas: a plane of items, such as devices and blocks, that is seen through a viewport. It is never mirrored. */
RWorkspaceCanvas {
    id: root

    RStyleSet.typeName: "RWorkspace"

    RStyleSet.stateHelper.disabled: !root.enabled
    RStyleSet.stateHelper.focus: root.activeFocus
    RStyleSet.stateHelper.readOnly: root.readOnly

    implicitWidth: 640 * RThemeValues.unit
    implicitHeight: 400 * RThemeValues.unit
    unit: RThemeValues.unit
    clip: true
}
