import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Gives a spin box the colours that the sheets have for the unacceptable text of a text field. */
RStyleProbe {
    id: root

    required property Item field

    type: "RTextField"

    Binding {
        target: root.field
        property: "ssForegroundInvalid"
        value: root.RStyleSet.props.isSet("foreground-invalid") ? root.RStyleSet.props.foregroundInvalid : root.RStyleSet.props.lineInvalid
    }
    Binding {
        target: root.field
        property: "ssLineInvalid"
        value: root.RStyleSet.props.isSet("line-invalid") ? root.RStyleSet.props.lineInvalid : root.RStyleSet.props.foregroundInvalid
    }
}
