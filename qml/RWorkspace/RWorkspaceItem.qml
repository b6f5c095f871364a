import QtQuick
import TambleClient.Control 1.0

/*! Device or block on a workspace: a titled surface around what the page puts into it. */
RWorkspaceBlock {
    id: root

    RStyleSet.typeName: "RWorkspaceItem"

    unit: RThemeValues.unit
}
