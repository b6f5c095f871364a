import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! A line of a form with a spin box. Steps move each of several devices from its own value. */
FieldLine {
    id: root

    property alias suffix: input.suffix
    property alias stepSize: input.stepSize
    property alias pageStepSize: input.pageStepSize
    /*! For gains: the lowest number stands for off, and has this text. */
    property alias minimumText: input.minimumText

    editor: input

    RSpinBox {
        id: input
        width: parent.width
        label: root.title
        enabled: root.target.devices.length > 0
        from: root.source.minimum
        to: root.source.maximum
        value: root.source.shown
        consistent: root.source.consistent
        confirmed: root.source.confirmed
        errorText: root.source.errorText
        onValueEdited: value => root.source.request(input.minimumText && value <= input.from ? -Infinity : value)
        onStepped: steps => root.source.shift(steps * input.stepSize)
    }
}
