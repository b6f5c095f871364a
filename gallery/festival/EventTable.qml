import QtQuick
import QtQuick.Templates as T
import Gallery
import TambleClient.Control 1.0

/*! The events, found by their device or text. */
FocusScope {
    id: root

    readonly property var kinds: [
        { kind: "", title: qsTr("All") },
        { kind: "alarm", title: qsTr("Alarms") },
        { kind: "presence", title: qsTr("Presence") },
        { kind: "refusal", title: qsTr("Refusals") },
        { kind: "network", title: qsTr("Others") },
        { kind: "action", title: qsTr("Own") },
    ]

    property string kind: ""

    RSortFilterProxyModel {
        id: ofKind
        sourceModel: GalleryInstallation.log
        filterRoleNames: ["kind"]
        filterPattern: root.kind
        sortEnabled: false
    }
    RSortFilterProxyModel {
        id: rows
        sourceModel: ofKind
        filterRoleNames: ["device", "text", "time"]
        filterPattern: search.text
        sortEnabled: false
    }
    Flow {
        id: tools
        width: root.width
        spacing: theme.dp(16)

        RTextField {
            id: search
            width: theme.dp(240)
            label: qsTr("Search")
            placeholderText: qsTr("Device, text or time")
        }
        RButtonRow {
            // qmllint disable unqualified
            Repeater {
                model: root.kinds

                RButton {
                    required property var modelData

                    width: Math.min(theme.dp(80), Math.floor(tools.width / root.kinds.length) - theme.dp(1))
                    text: modelData.title
                    selected: root.kind === modelData.kind
                    onClicked: root.kind = modelData.kind
                }
            }
            // qmllint enable unqualified
        }
        RButton {
            width: theme.dp(80)
            text: qsTr("Clear …")
            enabled: rows.count > 0
            onClicked: question.open()
        }
    }
    RListView {
        id: list
        y: tools.height + theme.dp(16)
        width: root.width
        height: root.height - y
        focus: true
        model: rows
        textRole: "text"
        label: qsTr("Events")
        placeholderText: qsTr("Nothing to show")
        selectionMode: RListView.None

        delegate: EventRow {}
    }
    RMessageBox {
        id: question
        title: qsTr("Clear the log?")
        text: qsTr("All events are removed, also those that are not shown. This cannot be undone.")
        icon: RMessageBox.Warning
        standardButtons: T.Dialog.Yes | T.Dialog.Cancel
        onAccepted: GalleryInstallation.log.clear()
    }
}
