import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! The user sheets beside the gallery, to choose one of. A sheet "paper" is the file "paper.all.style". */
Column {
    id: root

    /*! Key of the chosen sheet; empty for none. */
    property string key
    readonly property string suffix: ".all.style"

    signal chosen(string key)

    spacing: Math.max(1, Math.round(theme.dp(1)))

    RStylesDirWatcher {
        id: watcher
        stylePath: GalleryFiles.styleDirectory
        fileExtensions: ["*" + root.suffix]
    }
    // qmllint disable unqualified
    Repeater {
        model: ["", ...watcher.availableStyles]

        RButton {
            required property string modelData
            readonly property string key: modelData.slice(0, Math.max(0, modelData.length - root.suffix.length))

            text: key || qsTr("none")
            selected: root.key === key
            onClicked: root.chosen(key)
        }
    }
    // qmllint enable unqualified
}
