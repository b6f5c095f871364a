import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! Routes inputs to outputs. The crosspoints of the row and the column under the pointer or the focus are active. */
Item {
    id: root

    property int size: 8
    /*! Which crosspoints are closed, row by row. */
    property var routes: Array.from({
        length: root.size * root.size
    }, (_, index) => Math.floor(index / root.size) === index % root.size)
    property int current: 0
    property bool currentShown: false
    readonly property int activeRow: root.currentShown ? Math.floor(root.current / root.size) : -1
    readonly property int activeColumn: root.currentShown ? root.current % root.size : -1

    readonly property real gap: Math.max(1, Math.round(theme.dp(1)))
    readonly property real pitch: theme.dp(32) + root.gap
    readonly property real labelWidth: theme.dp(40)
    readonly property real labelHeight: theme.dp(24)

    function enter(index: int, shown: bool) {
        root.current = index
        root.currentShown = shown
    }

    function route(index: int, closed: bool) {
        root.routes = root.routes.map((value, i) => i === index ? closed : value)
    }

    function move(rows: int, columns: int) {
        const row = Math.floor(root.current / root.size) + rows
        const column = root.current % root.size + columns
        if (row < 0 || row >= root.size || column < 0 || column >= root.size)
            return
        crosspoints.itemAt(row * root.size + column).forceActiveFocus(Qt.TabFocusReason)
    }

    implicitWidth: root.labelWidth + root.size * root.pitch
    implicitHeight: root.labelHeight + root.size * root.pitch
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Matrix")
    Keys.onUpPressed: root.move(-1, 0)
    Keys.onDownPressed: root.move(1, 0)
    Keys.onLeftPressed: root.move(0, -1)
    Keys.onRightPressed: root.move(0, 1)

    // qmllint disable unqualified
    Repeater {
        model: root.size

        RText {
            required property int index

            x: root.labelWidth + index * root.pitch
            width: theme.dp(32)
            text: qsTr("Out %1").arg(index + 1)
            font.pixelSize: theme.fontSizeS
            font.bold: root.activeColumn === index
            horizontalAlignment: Text.AlignHCenter
        }
    }
    Repeater {
        model: root.size

        RText {
            required property int index

            y: root.labelHeight + index * root.pitch
            height: theme.dp(32)
            text: qsTr("In %1").arg(index + 1)
            font.pixelSize: theme.fontSizeS
            font.bold: root.activeRow === index
            verticalAlignment: Text.AlignVCenter
        }
    }
    // qmllint enable unqualified
    // Shows between the crosspoints.
    Surface {
        x: root.labelWidth - root.gap
        y: root.labelHeight - root.gap
        width: root.size * root.pitch + root.gap
        height: width
        RStyleSet.typeName: "RBodeplotGrid"
    }
    // qmllint disable unqualified
    Repeater {
        id: crosspoints
        model: root.size * root.size

        RButton {
            id: crosspoint

            required property int index
            readonly property int row: Math.floor(crosspoint.index / root.size)
            readonly property int column: crosspoint.index % root.size

            RStyleSet.name: "crossPoint"
            x: root.labelWidth + crosspoint.column * root.pitch
            y: root.labelHeight + crosspoint.row * root.pitch
            width: theme.dp(32)
            focusPolicy: crosspoint.index === root.current ? Qt.StrongFocus : Qt.ClickFocus
            text: crosspoint.selected ? qsTr("0") : ""
            active: crosspoint.row === root.activeRow || crosspoint.column === root.activeColumn
            selectable: true
            selected: root.routes[crosspoint.index]
            Accessible.name: qsTr("Input %1 to output %2").arg(crosspoint.row + 1).arg(crosspoint.column + 1)
            onSelectionEdited: selected => root.route(crosspoint.index, selected)
            onHoveredChanged: root.enter(crosspoint.index, crosspoint.hovered)
            onActiveFocusChanged: root.enter(crosspoint.index, crosspoint.activeFocus)
        }
    }
    // qmllint enable unqualified
}
