import QtQuick
import QtQml
import TambleClient.Control 1.0

/*! A field that shows one look of `FieldLooks.js`, whatever the pointer does. */
Loader {
    id: root

    required property var look

    onLoaded: {
        for (const name in root.look.values ?? {}) {
            if (name in root.item)
                root.item[name] = root.look.values[name]
        }
    }

    // qmllint disable unqualified
    Instantiator {
        active: root.status === Loader.Ready
        model: root.look.states ?? []

        Binding {
            required property string modelData

            target: root.item.RStyleSet.stateHelper
            property: modelData
            value: true
        }
    }
    // qmllint enable unqualified
}
