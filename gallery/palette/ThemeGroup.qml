import QtQuick
import QtQuick.Layouts
import Gallery
import TambleClient.Control 1.0

/*! A rule group of the sheets with the plain values of its keys. */
Section {
    id: root

    required property list<string> keys

    Layout.fillHeight: false

    Column {
        id: rows
        width: parent.width

        // Values are read here, beside the swatches: keys inherit, and a swatch's texts have a group of their own.
        Item {
            id: group
            RStyleSet.typeName: root.title
        }
        // qmllint disable unqualified
        Repeater {
            model: root.keys

            Swatch {
                required property string modelData

                width: rows.width
                key: modelData
                reader: group
            }
        }
        // qmllint enable unqualified
    }
}
