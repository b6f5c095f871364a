import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! A line of a form with the sources to choose from. A device may have one that nobody knows. */
FieldLine {
    id: root

    editor: input

    RComboBox {
        id: input
        width: parent.width
        label: root.title
        enabled: root.target.devices.length > 0
        model: GalleryInstallation.sources
        textRole: "name"
        valueRole: "sourceId"
        value: root.source.shown
        consistent: root.source.consistent
        confirmed: root.source.confirmed
        onValueEdited: value => root.source.request(value)
    }
}
