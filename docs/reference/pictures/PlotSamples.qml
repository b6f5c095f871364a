import QtQuick
import TambleClient.Control 1.0

/*! Parts that pages make plots of. */
Flow {
    id: root

    Sample {
        name: "RPlotGrid"
        RPlotGrid { width: theme.dp(160); height: theme.dp(160) }
    }
    Sample {
        name: "RAxisNumbering"
        RAxisNumbering { width: theme.dp(200); unit: "dB" }
        RAxisNumbering { height: theme.dp(120); orientation: Qt.Vertical; unit: "dB" }
    }
    Sample {
        name: "RDragHandler"
        RPlotGrid {
            width: theme.dp(160)
            height: theme.dp(160)
            RDragHandler { xValue: -40; yValue: -20 }
            RDragHandler { xValue: 0; yValue: 0; selected: true }
        }
    }
    Sample {
        name: "RLinePlotter"
        RLinePlotter { width: theme.dp(120); height: theme.dp(80); values: [0.2, 0.5, 0.6]; color: word.color }
        RLinePlotter { width: theme.dp(120); height: theme.dp(80); orientation: RLinePlotter.Vertical; values: [0.2, 0.5, 0.6]; lineWidth: 3; color: word.color }
    }
    Sample {
        name: "RGraphPlotter"
        RGraphPlotter {
            width: theme.dp(160)
            height: theme.dp(80)
            values: [Qt.point(0, 1), Qt.point(0.3, 0.4), Qt.point(0.6, 0.5), Qt.point(1, 0)]
            lineWidth: 2
            color: word.color
        }
    }
    Sample {
        name: "RGrid"
        RGrid {
            width: theme.dp(160)
            height: theme.dp(100)
            frameVisible: true
            horizontal: RGridLayout { positions: [0.25, 0.75]; majorPositions: [0.5]; color: Qt.alpha(word.color, 0.4); majorColor: word.color }
            vertical: RGridLayout { positions: [0.1, 0.2, 0.3, 0.4]; majorPositions: [0.5]; color: Qt.alpha(word.color, 0.4); majorColor: word.color }
        }
    }
    RText {
        id: word
    }
}
