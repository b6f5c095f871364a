import QtQuick
import TambleClient.Control 1.0

/*! Axes of several ranges, with as many ticks as fit or about as many as asked for. */
Flow {
    id: root

    readonly property var axes: [
        { title: "0 … 1", from: 0, to: 1 },
        { title: "-80 … 10", from: -80, to: 10, count: 10 },
        { title: "-12 … 12", from: -12, to: 12, count: 9, leftSided: true },
        { title: "0 … 20", from: 0, to: 20, count: 5, reverse: true },
        { title: "0 … 100", from: 0, to: 100 },
        { title: "-5 … 995", from: -5, to: 995, count: 12 },
        { title: "-1 … 3", from: -1, to: 3, count: 5, leftSided: true, reverse: true },
    ]

    spacing: theme.dp(8)

    // qmllint disable unqualified
    Repeater {
        model: root.axes

        Item {
            id: cell

            required property var modelData

            width: theme.dp(56)
            height: theme.dp(288)

            RAxis {
                x: theme.dp(cell.modelData.leftSided ? 36 : 16)
                y: theme.dp(8)
                width: theme.dp(4)
                height: theme.dp(240)
                minValue: cell.modelData.from
                maxValue: cell.modelData.to
                tickCount: cell.modelData.count ?? -1
                leftSided: Boolean(cell.modelData.leftSided)
                reverse: Boolean(cell.modelData.reverse)
            }
            RText {
                anchors.bottom: parent.bottom
                width: parent.width
                text: cell.modelData.title
                horizontalAlignment: Text.AlignHCenter
            }
        }
    }
    // qmllint enable unqualified
}
