import QtQuick
import TambleClient.Control 1.0
import "../Shared" as Shared

/*! Gives a spin box the colours that the sheets have for the unacceptable text of a text field. */
Shared.RStyleProbe {
    id: root

    required property Item field
    readonly property RStyleSetProps props: root.RStyleSet.props

    type: "RTextField"

    Binding {
        target: root.field
        property: "ssForegroundInvalid"
        value: root.props.isSet("foreground-invalid") ? root.props.foregroundInvalid : root.props.lineInvalid
    }
    Binding {
        target: root.field
        property: "ssLineInvalid"
        value: root.props.isSet("line-invalid") ? root.props.lineInvalid : root.props.foregroundInvalid
    }
}
