import QtQuick
import QtQuick.Layouts
import Gallery
import TambleClient.Control 1.0

/*! How the network and the devices behave. */
Column {
    id: root

    required property DeviceSelection target

    function choose(latency: int, jitter: int, loss: real, refusals: real, edits: real, dropOuts: real) {
        const network = GalleryInstallation
        network.behaviour.latency = latency
        network.behaviour.jitter = jitter
        network.behaviour.loss = loss
        network.behaviour.refusals = refusals
        network.behaviour.otherEditsPerMinute = edits
        network.behaviour.dropOutsPerMinute = dropOuts
    }

    spacing: theme.dp(8)

    RButtonRow {
        RButton {
            width: theme.dp(80)
            text: qsTr("Good")
            onClicked: root.choose(40, 20, 0, 0, 0, 0)
        }
        RButton {
            width: theme.dp(80)
            text: qsTr("Slow")
            onClicked: root.choose(1000, 500, 0, 0, 10, 0)
        }
        RButton {
            width: theme.dp(80)
            text: qsTr("Worst")
            onClicked: root.choose(3000, 3000, 0.3, 0.3, 600, 20)
        }
    }
    ChoiceLine {
        title: qsTr("Latency, ms")
        choices: [0, 40, 300, 1000, 3000]
        value: GalleryInstallation.behaviour.latency
        onChosen: value => GalleryInstallation.behaviour.latency = value
    }
    ChoiceLine {
        title: qsTr("Jitter, ms")
        choices: [0, 20, 100, 500, 3000]
        value: GalleryInstallation.behaviour.jitter
        onChosen: value => GalleryInstallation.behaviour.jitter = value
    }
    ChoiceLine {
        title: qsTr("Lost messages, %")
        choices: [0, 5, 10, 30, 100]
        value: Math.round(100 * GalleryInstallation.behaviour.loss)
        onChosen: value => GalleryInstallation.behaviour.loss = value / 100
    }
    ChoiceLine {
        title: qsTr("Refusals, %")
        choices: [0, 5, 10, 30, 100]
        value: Math.round(100 * GalleryInstallation.behaviour.refusals)
        onChosen: value => GalleryInstallation.behaviour.refusals = value / 100
    }
    ChoiceLine {
        title: qsTr("Other client's edits/min")
        choices: [0, 10, 60, 600, 6000]
        value: GalleryInstallation.behaviour.otherEditsPerMinute
        onChosen: value => GalleryInstallation.behaviour.otherEditsPerMinute = value
    }
    ChoiceLine {
        title: qsTr("Drop-outs/min")
        choices: [0, 2, 10, 20, 60]
        value: GalleryInstallation.behaviour.dropOutsPerMinute
        onChosen: value => GalleryInstallation.behaviour.dropOutsPerMinute = value
    }
    Flow {
        width: parent.width
        spacing: theme.dp(8)

        RButton {
            width: theme.dp(144)
            text: qsTr("Devices clamp")
            selected: GalleryInstallation.behaviour.clamping
            onClicked: GalleryInstallation.behaviour.clamping = !GalleryInstallation.behaviour.clamping
        }
        RButton {
            width: theme.dp(144)
            text: qsTr("Chosen ones drop out")
            onClicked: {
                for (const device of root.target.devices)
                    GalleryInstallation.dropOut(device, 5000)
            }
        }
    }
}
