import QtQuick
import TambleClient.Control 1.0

/*! Prints which style rules reach the items under the pointer, at each click into its parent, which goes through, and
    at each change of `changeToPrint`. */
MouseArea {
    id: root

    /*! False prints nothing. */
    property bool debug: true
    /*! Any change of it prints; a page may bind it to a key or a timer. */
    property int changeToPrint

    /*! The innermost child of `item` under the pointer, this area apart, which covers all others. */
    function childUnderPointer(item: Item): Item {
        const point = root.mapToItem(item, root.mouseX, root.mouseY)
        const child = item.childAt(point.x, point.y)
        if (child !== root)
            return child
        for (let i = item.children.length - 1; i >= 0; --i) {
            const sibling = item.children[i]
            if (sibling !== root && sibling.visible && sibling.contains(root.mapToItem(sibling, root.mouseX, root.mouseY)))
                return sibling
        }
        return null
    }

    /*! Prints the rules for the items under the pointer, outermost first. */
    function printStyleInfo() {
        if (!root.debug)
            return
        if (!root.containsMouse) {
            console.log("RStyleDebugMouseArea does not contain the mouse")
            return
        }
        console.log("--------- STYLE INFO")
        for (let item = root.parent; item; item = root.childUnderPointer(item)) {
            const info = root.RStyleSet.styleInfoOf(item)
            if (info)
                console.log(info)
        }
        console.log("--------- END STYLE INFO")
    }

    anchors.fill: parent
    z: 99
    hoverEnabled: true
    propagateComposedEvents: true
    Accessible.ignored: true
    onClicked: mouse => {
        root.printStyleInfo()
        mouse.accepted = false
    }
    onChangeToPrintChanged: root.printStyleInfo()

    Rectangle {
        id: frame
        anchors.fill: parent
        z: 100
        color: "transparent"
        border.width: 1
        border.color: "red"
    }
}
