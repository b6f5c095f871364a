import QtQuick
import Gallery
import TambleClient.Control 1.0
import "../plots"

GalleryPage {
    description: qsTr("What plots are made of: grids, numbers, lines, handles and axes.")

    TileGrid {
        Section {
            title: qsTr("RPlotGrid, RAxisNumbering, RDragHandler")
            note: qsTr("Drag the points, or walk them with Tab and the arrow keys. A double click leads to 0 dB.")

            PlotSample {
                width: parent.width
            }
        }
        Section {
            title: qsTr("RAxis")
            note: qsTr("Ticks at round values; to the left of the line, and from the other end.")

            AxisSamples {
                width: parent.width
            }
        }
        Section {
            title: qsTr("RGrid with RGridLayout")
            note: qsTr("Linear, logarithmic from 20 Hz to 20 kHz, and with stronger lines of 3 pixels.")

            GridSample {
                width: parent.width
            }
            GridSample {
                width: parent.width
                logarithmic: true
            }
            GridSample {
                width: parent.width
                logarithmic: true
                majorLineWidth: theme.dp(3)
            }
        }
        Section {
            title: qsTr("RLinePlotter and RGraphPlotter")
            note: qsTr("Lines wider than a pixel are smooth at their edges.")

            LineWidths {
                width: parent.width
            }
        }
    }
}
