import QtQuick
import TambleClient.Control 1.0

/*! A limiter over input levels, in a plot with linear axes. */
RBodeplot {
    id: root

    property alias ratio: limiter.ratio

    label: qsTr("Limiter")
    xAxisScale: RBodeplotAxisScaleEnum.LINEAR
    xMinimum: -60
    xMaximum: 0
    xIncrement: 10
    yMinimum: -60
    yMaximum: 0
    yIncrement: 10
    allowZoom: false
    dedicatedXAxisLine: false
    Accessible.description: qsTr("Input and output level, %1 to %2 dB").arg(root.xMinimum).arg(root.xMaximum)

    Item {
        id: response
        RStyleSet.typeName: "RBodeplotCurve"
    }
    RLimiterCurve {
        id: limiter
        // The sheets' own colour for it is hard to tell from the dark plot.
        ssCurve: response.RStyleSet.props.aggregatedCurve
        threshold: -20
        defaultThreshold: -20
    }
}
