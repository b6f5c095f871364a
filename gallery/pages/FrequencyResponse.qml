import QtQuick
import Gallery
import TambleClient.Control 1.0

GalleryPage {
    id: root

    description: qsTr("The filters of a loudspeaker channel and what they do to the signal that plays.")
    listening: true

    EditHistory {
        id: pageHistory
    }
    EqualizerStore {
        id: channelStore
        history: pageHistory
    }
    HistoryShortcuts {
        parent: root // takes no room in the column
        enabled: root.visible
        history: pageHistory
    }

    Section {
        title: qsTr("Response")
        note: qsTr("Drag a handle for frequency and gain, with the right button for Q. The wheel zooms the levels or, after a middle click, the frequencies. Dashes are measured in the signal.")

        EqualizerBar {
            width: parent.width
            store: channelStore
            plot: response
        }
        ResponsePlot {
            id: response
            width: parent.width
            height: theme.dp(320)
            store: channelStore
            measured: spectrum.measured
        }
        BandEditor {
            width: parent.width
            store: channelStore
        }
    }
    Section {
        title: qsTr("Signal")
        note: qsTr("The spectrum before the filters (thin) and behind them. The FIR filter is in the response only: the signal does not pass it.")

        SignalSpectrum {
            id: spectrum
            width: parent.width
            height: theme.dp(160)
            xMinimum: response.xMinimum
            xMaximum: response.xMaximum
            store: channelStore
        }
    }
    TileGrid {
        Section {
            title: qsTr("Equaliser")

            BandList {
                store: channelStore
                count: 8
            }
        }
        Section {
            title: qsTr("Crossover and FIR")

            BandList {
                store: channelStore
                first: 8
                count: 3
            }
        }
        Section {
            title: qsTr("Limiter")
            note: qsTr("Linear axes. The handle follows the diagonal; a double click sets -20 dB.")

            LimiterPlot {
                width: parent.width
                height: theme.dp(240)
                ratio: 4
            }
        }
        Section {
            title: qsTr("Handles")
            note: qsTr("The handle of a filter in its states.")

            HandleStates {
                width: parent.width
            }
        }
    }
}
