import QtQuick
import TambleClient.Control 1.0

/*! Caption of a control, its `buddy`. The full text of an elided one shows in a tool tip. */
RLabelBase {
    id: root

    property color ssColor: root.RStyleSet.props.foreground
    property color ssLineColor: root.RStyleSet.props.isSet("line-color") ? root.RStyleSet.props.lineColor
                                : root.RStyleSet.props.isSet("line") ? root.RStyleSet.props.line : root.ssColor

    bottomPadding: root.lineVisible ? 2 * RThemeValues.unit : 0
    color: root.ssColor
    lineColor: root.ssLineColor
    font.family: RThemeValues.fontFamily
    font.pixelSize: RThemeValues.fontSizeS
    renderType: RThemeValues.renderType
    elide: Text.ElideRight
    verticalAlignment: Text.AlignVCenter
}
