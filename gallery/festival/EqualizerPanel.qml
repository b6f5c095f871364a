import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! The filters of the main mix in a plot, and the values of the selected one. */
Column {
    id: root

    property alias plotHeight: response.height
    property alias measured: response.measured
    property alias xMinimum: response.xMinimum
    property alias xMaximum: response.xMaximum

    spacing: theme.dp(16)

    EqualizerBar {
        width: root.width
        store: Festival.equalizer
        plot: response
    }
    ResponsePlot {
        id: response
        width: root.width
        height: theme.dp(320)
        store: Festival.equalizer
    }
    BandEditor {
        width: root.width
        store: Festival.equalizer
    }
}
