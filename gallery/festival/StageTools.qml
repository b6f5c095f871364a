import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! Above the plan: searching, the next alarm, arranging what is selected, and the switch that protects all of it. */
Flow {
    id: root

    required property StageView view
    readonly property int selected: root.view.selection.count
    /*! The row that was shown last. */
    property int row: -1
    readonly property var edges: [
        { label: qsTr("Align left"), icon: "align-left", edge: Qt.AlignLeft },
        { label: qsTr("Align centres"), icon: "align-hcenter", edge: Qt.AlignHCenter },
        { label: qsTr("Align right"), icon: "align-right", edge: Qt.AlignRight },
        { label: qsTr("Align top"), icon: "align-top", edge: Qt.AlignTop },
        { label: qsTr("Align middles"), icon: "align-vcenter", edge: Qt.AlignVCenter },
        { label: qsTr("Align bottom"), icon: "align-bottom", edge: Qt.AlignBottom },
    ]

    function goTo(row: int) {
        missing.visible = row < 0
        if (row < 0)
            return
        root.row = row
        root.view.show(row)
    }
    function find() {
        missing.text = qsTr("No block is like this")
        root.goTo(root.view.stage.nextWith(search.text, root.row))
    }

    spacing: theme.dp(16)
    // Those that the field has no use for, since its text is entered already.
    Keys.onPressed: event => {
        event.accepted = search.activeFocus && [Qt.Key_Return, Qt.Key_Enter].includes(event.key)
        if (event.accepted)
            root.find()
    }

    Shortcut {
        sequence: "Ctrl+F"
        enabled: root.visible
        onActivated: search.forceActiveFocus(Qt.ShortcutFocusReason)
    }
    RTextField {
        id: search
        width: theme.dp(224)
        label: qsTr("Search")
        placeholderText: qsTr("Name or place, Enter for the next")
        onValueCommitted: root.find()
    }
    RButton {
        width: theme.dp(112)
        text: qsTr("Next alarm")
        onClicked: {
            missing.text = qsTr("There is no alarm")
            root.goTo(root.view.stage.nextAlarm(root.row))
        }
    }
    RButtonRow {
        enabled: !root.view.readOnly && root.selected >= 2

        // qmllint disable unqualified
        Repeater {
            model: root.edges

            RButtonIcon {
                required property var modelData

                width: theme.dp(36)
                label: modelData.label
                iconItem.key: modelData.icon
                onClicked: root.view.align(modelData.edge)
            }
        }
        // qmllint enable unqualified
    }
    RButtonRow {
        enabled: !root.view.readOnly && root.selected >= 3

        RButtonIcon {
            width: theme.dp(36)
            label: qsTr("Equal gaps across")
            iconItem.key: "distribute-h"
            onClicked: root.view.distribute(Qt.Horizontal)
        }
        RButtonIcon {
            width: theme.dp(36)
            label: qsTr("Equal gaps down")
            iconItem.key: "distribute-v"
            onClicked: root.view.distribute(Qt.Vertical)
        }
    }
    RButton {
        RStyleSet.name: Festival.showRuns ? "red" : ""
        width: theme.dp(112)
        text: Festival.showRuns ? qsTr("SHOW RUNS") : qsTr("Show mode")
        selected: Festival.showRuns
        onClicked: Festival.showRuns = !Festival.showRuns
    }
    RText {
        height: theme.dp(32)
        verticalAlignment: Text.AlignVCenter
        text: qsTr("%1 of %2 selected").arg(root.selected).arg(root.view.stage.count)
    }
    RText {
        id: missing
        height: theme.dp(32)
        visible: false
        verticalAlignment: Text.AlignVCenter
        font.bold: true
    }
}
