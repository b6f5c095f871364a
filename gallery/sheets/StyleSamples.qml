import QtQuick
import TambleClient.Control 1.0

/*! Buttons to point at. `info` lists the rules that reach the last one, the strongest first. */
Grid {
    id: root

    property Item inspected: plain
    property string info

    function inspect(sample: Item) {
        root.inspected = sample
        root.refresh()
    }

    function refresh() {
        root.info = root.inspected.RStyleSet.styleInfo
    }

    columns: 2
    spacing: theme.dp(8)
    Component.onCompleted: root.refresh()

    StyleSample {
        id: plain
        text: qsTr("plain")
        onEntered: root.inspect(plain)
    }
    StyleSample {
        id: selectable
        text: qsTr("selectable")
        selectable: true
        selected: true
        onEntered: root.inspect(selectable)
    }
    StyleSample {
        id: red
        RStyleSet.name: "red"
        text: qsTr("class red")
        onEntered: root.inspect(red)
    }
    StyleSample {
        id: green
        RStyleSet.name: "green"
        text: qsTr("class green")
        onEntered: root.inspect(green)
    }
    StyleSample {
        text: qsTr("disabled")
        enabled: false
    }
    StyleSample {
        id: asking
        text: qsTr("asks for \"glow\"")
        onEntered: root.inspect(asking)
        onClicked: asking.RStyleSet.props.color("glow")
    }
}
