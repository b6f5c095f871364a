import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! A line of a form with a switch. */
FieldLine {
    id: root

    editor: input

    RButtonSwitch {
        id: input
        width: theme.dp(64)
        label: root.title
        enabled: root.amplifier.devices.length > 0
        selectable: true
        selected: Boolean(root.source.shown)
        consistent: root.source.consistent
        onSelectionEdited: selected => root.source.request(selected)
    }
}
