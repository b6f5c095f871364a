import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import BasicClient

/*! The bar at the top: undoing, the pages, and what concerns all devices. */
ToolBar {
    id: root

    required property Installation installation
    property int currentIndex: 0
    readonly property UndoStack history: root.installation.history
    readonly property int alarms: root.installation.devices.alarms
    readonly property var pages: [
        { title: qsTr("Devices"), icon: "device" },
        { title: qsTr("Stage"), icon: "loudspeaker" },
        { title: qsTr("Routing"), icon: "matrix" },
        { title: qsTr("Levels"), icon: "mixer" },
        { title: qsTr("Equaliser"), icon: "eq" },
        { title: qsTr("Dynamics"), icon: "compressor" },
        { title: qsTr("Settings"), icon: "settings" },
        { title: qsTr("Log"), icon: "clock" },
        { title: qsTr("Catalogue"), icon: "apps" },
    ]

    /*! The devices with an alarm are to be shown. */
    signal alarmsAsked()

    RowLayout {
        anchors.fill: parent
        spacing: 0

        ToolButton {
            id: undo
            Layout.fillHeight: true
            enabled: root.history.canUndo
            icon.source: "qrc:/icons/undo_24x24.png"
            ToolTip.text: root.history.canUndo ? qsTr("Undo: %1").arg(root.history.undoText) : qsTr("Undo")
            ToolTip.visible: undo.hovered
            onClicked: root.history.undo()
        }
        ToolButton {
            id: redo
            Layout.fillHeight: true
            enabled: root.history.canRedo
            icon.source: "qrc:/icons/redo_24x24.png"
            ToolTip.text: root.history.canRedo ? qsTr("Redo: %1").arg(root.history.redoText) : qsTr("Redo")
            ToolTip.visible: redo.hovered
            onClicked: root.history.redo()
        }
        // qmllint disable unqualified
        Repeater {
            model: root.pages

            ToolButton {
                required property int index
                required property var modelData

                Layout.fillHeight: true
                text: modelData.title
                icon.source: "qrc:/icons/%1_24x24.png".arg(modelData.icon)
                checked: root.currentIndex === index
                onClicked: root.currentIndex = index
            }
        }
        // qmllint enable unqualified
        Item {
            Layout.fillWidth: true
        }
        StateButton {
            Layout.fillHeight: true
            color: root.alarms > 0 ? "firebrick" : "seagreen"
            text: root.alarms > 0 ? qsTr("ALARM") : qsTr("ONLINE")
            subText: root.alarms === 1 ? qsTr("1 device") : root.alarms > 0 ? qsTr("%1 devices").arg(root.alarms) : qsTr("all devices")
            checked: true
            flashing: root.alarms > 0
            onClicked: root.alarmsAsked()
        }
        StateButton {
            id: mute

            /*! The first click asks for a second one. */
            property bool asking: false

            Layout.fillHeight: true
            color: "firebrick"
            text: qsTr("MUTE ALL")
            subText: mute.asking ? qsTr("press again") : ""
            flashing: mute.checked
            onHoveredChanged: mute.asking = false
            onClicked: {
                if (mute.asking)
                    mute.checked = !mute.checked
                mute.asking = !mute.asking
            }
        }
    }
}
