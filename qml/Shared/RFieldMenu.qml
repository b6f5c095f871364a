import QtQuick
import TambleClient.Control 1.0
import "../RPopupMenu"

/*! Context menu of a text field; each entry names what the field is to do. */
RPopupMenu {
    id: root

    /*! A TextInput, a TextEdit, or what has their members. */
    required property var editor

    readonly property bool hasSelection: root.editor.selectionStart !== root.editor.selectionEnd
    /*! A password is copied nowhere. */
    readonly property bool readable: (root.editor.echoMode ?? TextInput.Normal) === TextInput.Normal

    /*! What was entered is the page's to undo. */
    readonly property bool entered: root.editor.edit?.edited === false

    // qmllint disable unqualified
    readonly property var copyEntry: ({ text: qsTr("Copy"), iconKey: "copy", shortcut: StandardKey.Copy, enabled: root.hasSelection && root.readable, action: "copy" })
    readonly property var selectEntry: ({ text: qsTr("Select all"), shortcut: StandardKey.SelectAll, enabled: root.editor.length > 0, action: "selectAll" })

    model: root.editor.readOnly ? [root.copyEntry, root.selectEntry] : [
        { text: qsTr("Undo"), iconKey: "undo", shortcut: StandardKey.Undo, enabled: root.editor.canUndo && !root.entered, action: "undo" },
        { text: qsTr("Redo"), iconKey: "redo", shortcut: StandardKey.Redo, enabled: root.editor.canRedo && !root.entered, action: "redo" },
        { separator: true },
        { text: qsTr("Cut"), shortcut: StandardKey.Cut, enabled: root.hasSelection && root.readable, action: "cut" },
        root.copyEntry,
        { text: qsTr("Paste"), iconKey: "paste", shortcut: StandardKey.Paste, enabled: root.editor.canPaste, action: "paste" },
        { text: qsTr("Delete"), iconKey: "delete", shortcut: StandardKey.Delete, enabled: root.hasSelection, action: "delete" },
        { separator: true },
        root.selectEntry
    ]
    // qmllint enable unqualified
}
