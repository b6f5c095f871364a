import QtQuick
import QtQuick.Layouts
import Gallery
import TambleClient.Control 1.0

/*! A line of a form: the caption of a field, the control that edits it, what became of the last request, and what the
    devices really have. Esc gives up a request that failed, Enter repeats it. */
GridLayout {
    id: root

    required property DeviceSelection target
    required property string field
    required property string title
    /*! The control, bound to `source`. */
    required property Item editor
    default property alias content: place.data
    readonly property alias source: source

    /*! Pixels per density-independent unit. */
    readonly property real unit: theme.dp(1)
    readonly property bool failed: source.errorText.length > 0
    /*! What became of the last request; empty when there is nothing to tell. */
    readonly property string answer: source.errorText || (!source.confirmed ? qsTr("waits for the answer") : root.target.online ? "" : qsTr("offline, as it was"))
    /*! Whether the answers stand below the control, as they have no room beside it. */
    readonly property bool narrow: root.width < 400 * root.unit

    function repeat(event: var) {
        event.accepted = root.failed
        if (root.failed)
            source.request(source.shown)
    }

    columnSpacing: 12 * root.unit
    rowSpacing: 0
    Keys.onEscapePressed: event => {
        event.accepted = root.failed
        source.dismiss()
    }
    Keys.onReturnPressed: event => root.repeat(event)
    Keys.onEnterPressed: event => root.repeat(event)

    DeviceField {
        id: source
        target: root.target
        field: root.field
    }
    RLabel {
        Layout.preferredWidth: 76 * root.unit
        text: root.title
        buddy: root.editor
    }
    Item {
        id: place
        Layout.fillWidth: root.narrow
        Layout.preferredWidth: 168 * root.unit
        implicitHeight: root.editor.height
    }
    // qmllint disable unqualified
    Loader {
        Layout.row: root.narrow ? 1 : 0
        Layout.column: root.narrow ? 1 : 2
        Layout.columnSpan: root.narrow ? 2 : 1
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        // The form does not jump with each request.
        Layout.minimumHeight: root.narrow ? (root.target.observed ? 2 : 1) * 14 * root.unit : 0
        active: root.answer.length > 0 || root.target.observed
        sourceComponent: ColumnLayout {
            spacing: 0

            RText {
                Layout.fillWidth: true
                visible: root.answer.length > 0
                text: root.answer
                elide: Text.ElideRight
                font.pixelSize: theme.fontSizeS
                font.bold: root.failed
                Accessible.role: Accessible.AlertMessage
                Accessible.name: text
            }
            RText {
                Layout.fillWidth: true
                visible: root.target.observed
                text: root.target.observed ? qsTr("has %1").arg(source.actualText) : ""
                elide: Text.ElideRight
                font.pixelSize: theme.fontSizeS
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
    }
    Loader {
        Layout.row: 0
        Layout.column: root.narrow ? 2 : 3
        Layout.preferredWidth: 28 * root.unit
        active: root.target.observed
        visible: root.target.observed
        // Without the focus, so that it can be clicked while the field is being edited.
        sourceComponent: RButtonIcon {
            focusPolicy: Qt.NoFocus
            label: qsTr("Another client edits %1").arg(root.title)
            iconItem.key: "user"
            iconItem.sizeClass: "XS"
            onClicked: source.editElsewhere()
        }
    }
    // qmllint enable unqualified
}
