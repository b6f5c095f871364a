import QtQuick
import TambleClient.Control 1.0

/*! Reads the style keys of another type at this place of the tree, for controls that have none of their own. */
Item {
    id: root

    property string type

    visible: false
    // Not by a binding: others may read a key before that is evaluated, which no rule sets for a probe without a type.
    onTypeChanged: root.RStyleSet.typeName = root.type
}
