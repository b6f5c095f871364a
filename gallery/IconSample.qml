import QtQuick

/*! A few icons in one size. */
Row {
    id: root

    required property int size

    spacing: 4

    Repeater {
        model: ["check", "mute", "warning", "lock"]

        IconTile {
            required property string modelData
            width: size + 14
            key: modelData
            size: root.size // qmllint disable unqualified
            caption: size
        }
    }
}
