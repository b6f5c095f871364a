import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! A dynamics panel in the signal path of a channel: its meters, its parameters, and buttons for its states. The panel
    is the content; `points` are its curve, `parameters` pairs of a name and a value with its unit. */
Section {
    id: root

    property alias channel: tap.channel
    property alias points: tap.points
    property alias gainCurve: tap.gainCurve
    property alias floorGain: tap.floorGain
    /*! The gain meter reaches this far up and down. */
    property real gainRange: 20
    property alias attack: tap.attack
    property alias release: tap.release
    property string inputTitle: qsTr("In")
    property var parameters: []
    default property alias panel: place.data

    readonly property alias bypassed: bypassButton.selected
    readonly property bool active: !inactiveButton.selected
    readonly property alias inputLevel: tap.inputLevel
    readonly property alias gain: tap.gain
    readonly property int countedChannel: root.channel % GalleryAudio.channels
    readonly property ChannelLevel level: GalleryAudio.levels[root.countedChannel]

    note: qsTr("Channel: %1").arg(root.level.name)
    content: [
        DynamicsTap {
            id: tap
            // Full scale of the signal is the upper end of the panels, as for a device with 20 dBu.
            fullScale: 20
        },
        Row {
            spacing: theme.dp(8)

            Item {
                id: place
                width: root.contentWidth - 3 * theme.dp(48)
                height: theme.dp(304)
            }
            TileMeter {
                title: root.inputTitle
                owner: root.title
                value: tap.inputLevel
            }
            TileMeter {
                title: qsTr("Out")
                owner: root.title
                value: tap.outputLevel
            }
            TileMeter {
                title: qsTr("Gain")
                owner: root.title
                value: tap.gain
                minimum: -root.gainRange
                maximum: root.gainRange
                split: true
            }
        },
        Row {
            spacing: theme.dp(16)

            RButtonRow {
                RButton {
                    id: bypassButton
                    width: theme.dp(88)
                    text: qsTr("Bypass")
                    selectable: true
                    Accessible.name: qsTr("%1, bypass").arg(root.title)
                }
                RButton {
                    id: inactiveButton
                    width: theme.dp(88)
                    text: qsTr("Inactive")
                    selectable: true
                    Accessible.name: qsTr("%1, inactive").arg(root.title)
                }
            }
            ParameterList {
                anchors.verticalCenter: parent.verticalCenter
                width: root.contentWidth - x
                parameters: root.parameters
            }
        }
    ]
}
