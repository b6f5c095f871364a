import QtQuick
import TambleClient.Control 1.0

/*! Progress of a transfer. Values out of the range are shown as its ends. */
RProgressBarBase {
    id: root

    // Of the trough; the bar has another group.
    RStyleSet.typeName: "RAccordion"

    ssBackground: root.RStyleSet.props.background
    ssLineColor: bar.RStyleSet.props.line

    unit: RThemeValues.unit
    reached: root.position
    endless: root.indeterminate

    background: Rectangle { // qmllint disable deferred-property-id
        color: root.ssBackground
        // Some themes have troughs of the same colour as the page.
        border.width: RThemeValues.unit
        border.color: root.ssLineColor
    }
    contentItem: Rectangle { // qmllint disable deferred-property-id
        id: bar

        RStyleSet.typeName: "RAppBarNavButton"

        color: root.ssLineColor
    }
}
