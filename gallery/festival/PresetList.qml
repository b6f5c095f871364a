import QtQuick
import QtQuick.Templates as T
import Gallery
import TambleClient.Control 1.0

/*! The presets of the first mixer: to recall, to store and to delete. */
Column {
    id: root

    readonly property PresetListModel presets: GalleryInstallation.presets
    readonly property int chosen: list.selectedIndexes.length > 0 ? list.selectedIndexes[0] : -1

    spacing: theme.dp(8)

    RListView {
        id: list
        width: root.width
        height: theme.dp(32) * 5
        model: root.presets
        textRole: "name"
        label: qsTr("Presets")
        placeholderText: qsTr("No preset is stored")
        onActivated: index => recallQuestion.recall(index)
    }
    Flow {
        width: root.width
        spacing: theme.dp(8)

        RButton {
            width: theme.dp(96)
            enabled: root.chosen >= 0 && recallQuestion.possible
            text: qsTr("Recall")
            onClicked: recallQuestion.recall(root.chosen)
        }
        RButton {
            width: theme.dp(96)
            enabled: root.chosen >= 0
            text: qsTr("Delete …")
            onClicked: question.ask(root.chosen)
        }
        RButton {
            width: theme.dp(96)
            text: qsTr("Store …")
            onClicked: storing.open()
        }
    }
    RText {
        width: root.width
        visible: !recallQuestion.possible
        wrapMode: Text.Wrap
        text: qsTr("The FOH mixer is offline; nothing can be recalled.")
        font.bold: true
    }
    RDialog {
        id: storing
        title: qsTr("Store what the FOH mixer shows")
        iconKey: "preset"
        standardButtons: T.Dialog.Ok | T.Dialog.Cancel
        onAccepted: root.presets.store(newName.text)

        Column {
            width: parent.width
            spacing: theme.dp(8)

            RLabel {
                width: parent.width
                text: qsTr("&Name of the preset; one of the same name is replaced")
                buddy: newName
            }
            RTextField {
                id: newName
                width: parent.width
                required: true
                validator: RStringRuleValidator {
                    rule: RStringRuleValidatorRule.RULE_NAME
                    maximumLength: 24
                }
            }
        }
    }
    RecallQuestion {
        id: recallQuestion
    }
    RMessageBox {
        id: question

        property int row: -1

        function ask(row: int) {
            question.row = row
            question.text = qsTr("The preset \"%1\" is deleted. This cannot be undone.").arg(root.presets.nameAt(row))
            question.open()
        }

        title: qsTr("Delete the preset?")
        icon: RMessageBox.Warning
        standardButtons: T.Dialog.Yes | T.Dialog.Cancel
        onAccepted: root.presets.remove(question.row)
    }
}
