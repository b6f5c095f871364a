import QtQuick
import TambleClient.Control 1.0

/*! Caption in an RAccordion for the sections behind it, up to the next caption. */
RAccordionSectionHeaderBase {
    id: root

    RStyleSet.typeName: "RAccordionSectionHeader"
    RStyleSet.stateHelper.hovered: root.hovered
    RStyleSet.stateHelper.pressed: root.down
    RStyleSet.stateHelper.disabled: !root.enabled
    RStyleSet.stateHelper.focus: root.activeFocus

    /*! What the sections have in common. */
    property alias title: root.text

    ssBackground: root.sheetBackground
    ssColor: root.sheetColor

    unit: RThemeValues.unit
    implicitWidth: 288 * RThemeValues.unit
    implicitHeight: 24 * RThemeValues.unit
    hoverEnabled: RThemeValues.hoverEnabled && root.collapsible
    focusVisible: root.RStyleSet.stateHelper.focus

    titleItem: RText {
        text: root.text
        color: root.ssColor
        font.pixelSize: RThemeValues.fontSizeS
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
    }
}
