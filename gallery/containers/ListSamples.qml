import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! Lists: of one row, of several rows with a menu, with rows of the page's own, with nothing to show, switched off. */
Flow {
    id: root

    property string said: qsTr("nothing yet")

    width: parent?.width ?? 0
    spacing: theme.dp(16)

    ListSample {
        title: qsTr("One row")

        RListView {
            anchors.fill: parent
            label: qsTr("Presets")
            model: [qsTr("Concert hall"), qsTr("Conference"), qsTr("Foyer"), qsTr("Speech"), qsTr("Theatre"), qsTr("Evacuation")]
            selectedIndexes: [2]
            onActivated: index => root.said = qsTr("preset %1 is used").arg(index + 1)
        }
    }
    ListSample {
        title: qsTr("Several rows")

        RListView {
            id: devices
            anchors.fill: parent
            label: qsTr("Amplifiers")
            textRole: "name"
            model: GalleryInstallation.amplifiers
            selectionMode: RListView.Multiple
            onSelectionEdited: indexes => root.said = qsTr("%1 amplifiers are selected").arg(indexes.length)
            onContextMenuRequested: (index, position) => menu.popupAt(devices, position)
        }
    }
    ListSample {
        title: qsTr("Rows of the page's own")

        RListView {
            anchors.fill: parent
            label: qsTr("Amplifiers and their places")
            model: GalleryInstallation.amplifiers
            delegate: DeviceRow {}
            onActivated: index => root.said = qsTr("amplifier %1 is opened").arg(index + 1)
        }
    }
    ListSample {
        title: qsTr("Nothing to show")

        RListView {
            anchors.fill: parent
            placeholderText: qsTr("No device was found in this network")
        }
    }
    ListSample {
        title: qsTr("Switched off")

        RListView {
            anchors.fill: parent
            label: qsTr("Outputs")
            enabled: false
            model: [qsTr("Left"), qsTr("Right"), qsTr("Subwoofer")]
            selectedIndexes: [1]
        }
    }
    RText {
        width: parent.width
        text: qsTr("Last: %1").arg(root.said)
        font.bold: true
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    RPopupMenu {
        id: menu
        model: [{ text: qsTr("Identify"), iconKey: "identify" }, { text: qsTr("Select none"), action: "none" }]
        onItemTriggered: (index, item) => {
            root.said = qsTr("%1, %2 amplifiers").arg(item.text).arg(devices.selectedIndexes.length)
            if (item.action === "none")
                devices.clearSelection()
        }
    }
}
