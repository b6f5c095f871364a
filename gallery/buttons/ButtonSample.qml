import QtQuick
import QtQml
import TambleClient.Control 1.0

/*! A button that shows one combination of states, whatever the pointer does. */
Loader {
    id: root

    required property string styleClass
    /*! State words as in a sheet. */
    required property var states
    readonly property var button: root.item

    onLoaded: {
        root.button.focusPolicy = Qt.NoFocus
        root.button.RStyleSet.name = root.styleClass
        root.button.selected = root.states.includes("selected")
        root.button.consistent = !root.states.includes("inconsistent")
        root.button.enabled = !root.states.includes("disabled")
    }

    // qmllint disable unqualified
    Instantiator {
        active: root.status === Loader.Ready
        model: root.states

        Binding {
            required property string modelData

            target: root.button.RStyleSet.stateHelper
            property: modelData
            value: true
        }
    }
    // qmllint enable unqualified
}
