import QtQuick
import TambleClient.Control 1.0

/*! A row of a list whose page gives it no delegate. */
RListRowBase {
    id: root

    height: 32 * RThemeValues.unit
    leftPadding: 16 * RThemeValues.unit
    rightPadding: 16 * RThemeValues.unit
    color: !root.list ? "transparent" : root.selected ? root.list.ssForegroundItemSelected : root.hovered ? root.list.ssForegroundItemHover : root.list.ssColor
    opacity: root.enabled ? 1 : 0.4
    font.family: RThemeValues.fontFamily
    font.pixelSize: RThemeValues.fontSizeM
    renderType: RThemeValues.renderType
    textFormat: Text.PlainText
    elide: Text.ElideRight
    horizontalAlignment: Text.AlignLeft
    verticalAlignment: Text.AlignVCenter
}
