import QtQuick
import TambleClient.Control 1.0

/*! Title of an item on a workspace: small beside the icon, or large enough to be read at a small zoom. */
RText {
    id: root

    required property RWorkspaceBlock block

    text: root.block.title
    color: root.block.ssColor
    // Below a zoom of 0.4 as large as a text once more at a half.
    font.pixelSize: root.block.detailed ? RThemeValues.fontSizeS : 2 * RThemeValues.fontSizeM
    elide: Text.ElideRight
    // Drawn at all sizes.
    renderType: Text.QtRendering
}
