import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Curve of a limiter with a handle for its threshold, on the diagonal. */
RDynamicsPlot {
    id: root

    property alias calculatorActive: calculator.calculatorActive
    property alias limiterBypassed: calculator.limiterBypassed
    property alias threshold: calculator.threshold
    property alias thresholdMin: calculator.thresholdMin
    property alias thresholdMax: calculator.thresholdMax
    readonly property alias values: calculator.values
    /*! Where a double click on the handle leads, in dB; undefined for nowhere. */
    property var defaultThreshold: 0

    /*! The user changes the threshold (`thresholdEdited`) and has finished (`thresholdCommitted`), in dB. */
    signal thresholdEdited(real value)
    signal thresholdCommitted(real value)

    title: qsTr("Limiter")
    xFrom: root.thresholdMin
    xTo: root.thresholdMax
    active: root.calculatorActive
    bypassed: root.limiterBypassed
    points: root.values

    RLimiterCalculator {
        id: calculator
        thresholdMin: -60
        thresholdMax: 20
        limiterBypassed: false
    }
    RParameterHandle {
        function valueAt(x: real, y: real): real {
            return (x + y) / 2
        }

        plot: root
        target: calculator
        name: "threshold"
        label: qsTr("Threshold")
        unit: root.xUnit
        defaultValue: root.defaultThreshold
        xValue: root.threshold
        yValue: root.threshold
        onEdited: value => root.thresholdEdited(value)
        onCommitted: value => root.thresholdCommitted(value)
    }
}
