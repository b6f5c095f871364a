import QtQuick
import TambleClient.Control 1.0

/*! Reads the style keys of another type at this place of the tree, for controls that have none of their own. */
Item {
    id: root

    property string type

    RStyleSet.typeName: root.type

    visible: false
}
