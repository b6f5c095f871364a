import QtQuick
import QtQuick.Layouts
import Gallery
import TambleClient.Control 1.0
import "../levels"

GalleryPage {
    id: root

    /*! Two channels of the signal, counted around: the mixes of the built-in one. */
    readonly property int leftIndex: 6 % GalleryAudio.channels
    readonly property int rightIndex: 7 % GalleryAudio.channels
    readonly property ChannelLevel leftMix: GalleryAudio.levels[root.leftIndex]
    readonly property ChannelLevel rightMix: GalleryAudio.levels[root.rightIndex]
    readonly property real leftPeak: root.leftMix ? root.leftMix.peak : -120
    property real difference: 0

    description: qsTr("Meters follow the signal twenty times a second: up at once, down by 60 dB per second.")
    listening: true

    Connections {
        target: GalleryAudio

        // The levels of a block come one after another; the difference is right when all are there.
        function onSnapshotChanged() {
            root.difference = root.leftMix && root.rightMix ? root.leftMix.rms - root.rightMix.rms : 0
        }
    }
    Section {
        title: qsTr("All channels")
        note: qsTr("Wide: peak. Thin and in figures: RMS. The square lights at -0.5 dBFS and stays lit.")

        MeterBridge {
            width: parent.width
        }
    }
    TileGrid {
        Section {
            title: qsTr("RMeter")
            note: qsTr("The split one shows by how much the left mix is above the right one.")

            MeterForms {
                width: parent.width
                level: root.leftPeak
                difference: root.difference
            }
        }
        Section {
            title: qsTr("RFader and its marker on a meter")
            note: qsTr("The meter has the level behind the fader. The marker follows the law of the fader, the bar is always linear.")

            Flow {
                width: parent.width
                spacing: theme.dp(32)

                FaderLaw {
                    title: qsTr("Linear")
                    level: root.leftPeak
                    value: -20
                }
                FaderLaw {
                    title: qsTr("Exponential")
                    level: root.leftPeak
                    value: -20
                    exponential: true
                }
                FaderLaw {
                    title: qsTr("Table")
                    level: root.leftPeak
                    value: -20
                    table: true
                }
            }
        }
        Section {
            title: qsTr("Classes and states of RFader")
            note: qsTr("The bars in the tracks show the level in force.")

            FaderStates {
                width: parent.width
            }
        }
        Section {
            title: qsTr("Read-only and lying faders, with RAxis")
            note: qsTr("A fader and a meter of the same height share their scale.")

            Row {
                id: row
                width: parent.width
                spacing: theme.dp(16)

                ReadOnlyFader {
                    id: readOnly
                    level: root.leftPeak
                }
                LyingFaders {
                    width: row.width - readOnly.width - row.spacing
                }
            }
        }
    }
}
