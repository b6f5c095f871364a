import QtQuick
import Gallery

/*! The keys that undo and redo. */
Item {
    id: root

    required property EditHistory history

    Shortcut {
        enabled: root.enabled && root.history.canUndo
        sequence: "Ctrl+Z"
        onActivated: root.history.undo()
    }
    Shortcut {
        enabled: root.enabled && root.history.canRedo
        sequences: ["Ctrl+Shift+Z", "Ctrl+Y"]
        onActivated: root.history.redo()
    }
}
