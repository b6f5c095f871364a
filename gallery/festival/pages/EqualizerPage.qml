import QtQuick
import QtQuick.Layouts
import Gallery
import TambleClient.Control 1.0

/*! The filters of the main mix and what they do to the signal. */
FestivalPage {
    id: root

    title: qsTr("Equaliser")
    listening: true
    padding: 0

    GalleryPage {
        anchors.fill: parent

        EqualizerPanel {
            id: panel
            Layout.fillWidth: true
            plotHeight: Math.max(theme.dp(200), root.height - theme.dp(370))
            measured: spectrum.measured
        }
        SignalSpectrum {
            id: spectrum
            Layout.fillWidth: true
            Layout.preferredHeight: theme.dp(160)
            xMinimum: panel.xMinimum
            xMaximum: panel.xMaximum
            store: Festival.equalizer
        }
        BandList {
            Layout.fillWidth: true
            store: Festival.equalizer
            count: 11
        }
    }
}
