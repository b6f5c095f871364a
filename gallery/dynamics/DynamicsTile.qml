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
    /*! How long, in ms, an edit is shown whatever the tile says: no device answers late here, but an undone edit is to
        be seen soon. */
    readonly property int settleTime: 50
    property string inputTitle: qsTr("In")
    property var parameters: []
    /*! Where edits can be undone; null when they cannot. */
    property EditHistory history: null
    default property alias panel: place.data

    property bool bypassed: false
    property bool active: true
    readonly property alias inputLevel: tap.inputLevel
    readonly property alias gain: tap.gain
    readonly property int countedChannel: root.channel % GalleryAudio.channels
    readonly property ChannelLevel level: GalleryAudio.levels[root.countedChannel]

    /*! Gives the panel's parameter of that name, or one of its states, another value. */
    function edit(key: string, value: var) {
        const state = value => ({ key: key, value: value })
        if (root.history)
            root.history.keep(root, state(root[key]), state(value), qsTr("%1: %2").arg(root.title).arg(key), key)
        else
            root.reveal(state(value))
    }

    function reveal(state: var) {
        root[state.key] = state.value
    }

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
                height: Math.min(theme.dp(304), place.width + theme.dp(32))
            }
            TileMeter {
                title: root.inputTitle
                owner: root.title
                meterHeight: place.height - theme.dp(48)
                value: tap.inputLevel
            }
            TileMeter {
                title: qsTr("Out")
                owner: root.title
                meterHeight: place.height - theme.dp(48)
                value: tap.outputLevel
            }
            TileMeter {
                title: qsTr("Gain")
                owner: root.title
                meterHeight: place.height - theme.dp(48)
                value: tap.gain
                minimum: -root.gainRange
                maximum: root.gainRange
                split: true
            }
        },
        Grid {
            id: foot

            // Room for two parameters side by side.
            readonly property bool wide: root.contentWidth >= states.width + foot.spacing + theme.dp(240)

            columns: foot.wide ? 2 : 1
            spacing: theme.dp(16)
            verticalItemAlignment: Grid.AlignVCenter

            RButtonRow {
                id: states

                RButton {
                    width: theme.dp(88)
                    text: qsTr("Bypass")
                    selected: root.bypassed
                    Accessible.name: qsTr("%1, bypass").arg(root.title)
                    onClicked: root.edit("bypassed", !root.bypassed)
                }
                RButton {
                    width: theme.dp(88)
                    text: qsTr("Inactive")
                    selected: !root.active
                    Accessible.name: qsTr("%1, inactive").arg(root.title)
                    onClicked: root.edit("active", !root.active)
                }
            }
            ParameterList {
                width: root.contentWidth - (foot.wide ? states.width + foot.spacing : 0)
                parameters: root.parameters
            }
        }
    ]
}
