import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! A channel of a mixer: its name, its level behind the fader, the fader with its value, and muting. */
Item {
    id: root

    required property DeviceSelection target
    /*! "input1" to "output2". */
    required property string channel
    /*! The channel of the signal that it carries. */
    required property int source
    /*! Whether the whole mixer is muted. */
    property bool silenced: false

    readonly property int countedSource: root.source % GalleryAudio.channels
    readonly property ChannelLevel level: GalleryAudio.levels[root.countedSource]
    readonly property real gain: root.standing(gainField) ?? -80
    readonly property bool muted: Boolean(root.standing(muteField))
    readonly property bool failed: gainField.errorText.length > 0 || muteField.errorText.length > 0

    /*! What is asked for while that waits, and what the mixer really has once the request has failed. */
    function standing(field: DeviceField): var {
        return field.errorText.length > 0 ? field.value : field.shown
    }

    implicitWidth: theme.dp(66)
    Accessible.role: Accessible.Grouping
    Accessible.name: name.text

    DeviceField {
        id: nameField
        target: root.target
        field: root.channel + "Name"
    }
    DeviceField {
        id: gainField
        target: root.target
        field: root.channel + "Gain"
    }
    DeviceField {
        id: muteField
        target: root.target
        field: root.channel + "Mute"
    }
    // Long enough to be read, once the page is seen; the log keeps the reason.
    Timer {
        interval: 4000
        running: root.failed && root.visible
        onTriggered: {
            gainField.dismiss()
            muteField.dismiss()
        }
    }
    Surface {
        anchors.fill: parent
        RStyleSet.typeName: "RPane"
    }
    RText {
        id: name
        width: root.width
        height: theme.dp(32)
        leftPadding: theme.dp(2)
        rightPadding: theme.dp(2)
        text: nameField.shown ?? ""
        elide: Text.ElideRight
        font.pixelSize: theme.fontSizeS
        font.bold: true
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
    RMeter {
        id: meter
        x: theme.dp(4)
        y: name.height
        width: theme.dp(8)
        height: root.height - y - theme.dp(80)
        value: root.silenced || root.muted || !root.level || !root.target.online ? -120 : Math.max(-120, root.level.peak + root.gain)
        // The same scale as the fader's beside it.
        valueMin: fader.from
        valueMax: fader.to
        valueMinYellow: -12
        valueMinRed: -3
        unit: "dBFS"
        Accessible.name: qsTr("%1, level").arg(name.text)
    }
    RFader {
        id: fader
        x: root.width - width
        y: meter.y
        height: meter.height
        label: name.text
        value: root.gain
        from: -80
        to: 10
        defaultValue: 0
        enabled: root.target.online
        consistent: gainField.consistent
        confirmed: gainField.confirmed
        onValueEdited: value => gainField.request(value <= fader.from ? -Infinity : value)
        onValueCommitted: GalleryInstallation.history.finish()
    }
    RText {
        id: number
        y: meter.y + meter.height
        width: root.width
        height: theme.dp(32)
        text: root.failed ? qsTr("failed") : fader.converter.toText(root.gain)
        font.bold: root.failed
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
    RButton {
        RStyleSet.name: root.muted ? "red" : ""
        x: theme.dp(4)
        y: number.y + number.height
        width: root.width - theme.dp(8)
        text: qsTr("Mute")
        selected: root.muted
        consistent: muteField.consistent
        enabled: root.target.online
        Accessible.name: qsTr("Mute %1").arg(name.text)
        onClicked: muteField.request(!root.muted)
    }
}
