import QtQuick
import TambleClient.Control 1.0

/*! Soft shadow below a rectangular item: its parent, or the sibling that is its `target`. */
RBoxShadowBase {
    id: root

    RStyleSet.typeName: "RFlyoutToolbar"

    ssShadow: root.RStyleSet.props.shadow
    spread: 8 * RThemeValues.unit
    offsetY: 2 * RThemeValues.unit
    edgeWidth: RThemeValues.unit
}
