import QtQuick
import TambleClient.Control 1.0

/*! A section of an RAccordion: a header with a title, and a body that it opens. Its children stand in the body. */
RAccordionItemBase {
    id: root

    RStyleSet.typeName: "RAccordionItem"
    RStyleSet.stateHelper.disabled: !root.enabled

    unit: RThemeValues.unit
    implicitWidth: 288 * RThemeValues.unit

    header: RAccordionHeader {
        id: heading
        // With a style set of its own: what the body has would change with each move over the header.
        RStyleSet.typeName: "RAccordionItem"
        RStyleSet.name: root.RStyleSet.name
        RStyleSet.stateHelper.hovered: root.RStyleSet.stateHelper.hovered || (heading.hovered && !heading.dragged)
        RStyleSet.stateHelper.pressed: root.RStyleSet.stateHelper.pressed || heading.down
        RStyleSet.stateHelper.disabled: root.RStyleSet.stateHelper.disabled
        RStyleSet.stateHelper.focus: root.RStyleSet.stateHelper.focus || heading.activeFocus
        hoverEnabled: RThemeValues.hoverEnabled
        focusVisible: heading.RStyleSet.stateHelper.focus

        titleItem: RText {
            text: root.title
            color: root.ssColor
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            verticalAlignment: Text.AlignVCenter
        }
    }
}
