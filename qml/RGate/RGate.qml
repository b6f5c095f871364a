import QtQuick
import "../Shared"
import TambleClient.Control 1.0
import "../RLimiter"

/*! Curve of a noise gate with handles for its threshold and for the depth of the drop below it. */
RDynamicsPlot {
    id: root

    property alias calculatorActive: calculator.calculatorActive
    property alias gateBypassed: calculator.gateBypassed
    property alias threshold: calculator.threshold
    property alias thresholdMin: calculator.thresholdMin
    property alias thresholdMax: calculator.thresholdMax
    property alias depth: calculator.depth
    property alias depthMin: calculator.depthMin
    property alias depthMax: calculator.depthMax
    readonly property alias values: calculator.values
    /*! Where a double click on a handle leads, in dB, undefined for nowhere: `defaultThreshold` and `defaultDepth`. */
    property var defaultThreshold: 0
    property var defaultDepth: 40

    /*! The user changes the threshold (`thresholdEdited`) and has finished (`thresholdCommitted`), in dB. */
    signal thresholdEdited(real value)
    signal thresholdCommitted(real value)
    /*! The user changes the depth (`depthEdited`) and has finished (`depthCommitted`), in dB. */
    signal depthEdited(real value)
    signal depthCommitted(real value)

    title: qsTr("Gate")
    xFrom: root.thresholdMin
    xTo: root.thresholdMax
    active: root.calculatorActive
    bypassed: root.gateBypassed
    // A parameter beyond its bounds empties the values without a signal of theirs.
    points: [root.values, root.threshold, root.thresholdMin, root.thresholdMax, root.depth, root.depthMin, root.depthMax, root.gateBypassed][0]

    RNoiseGateCalculator {
        id: calculator
        thresholdMin: -60
        thresholdMax: 20
        depth: 40
        depthMin: 0
        depthMax: 60
        gateBypassed: false
    }
    RParameterHandle {
        plot: root
        target: calculator
        name: "threshold"
        label: qsTr("Threshold")
        unit: root.xUnit
        defaultValue: root.defaultThreshold
        yEnabled: false
        xValue: root.threshold
        yValue: root.threshold
        onEdited: value => root.thresholdEdited(value)
        onCommitted: value => root.thresholdCommitted(value)
    }
    // Last, so that it and not the threshold is meant at depth 0, where the two stand at one point.
    RParameterHandle {
        function valueAt(x: real, y: real): real {
            return root.threshold - y
        }

        plot: root
        target: calculator
        name: "depth"
        label: qsTr("Depth")
        defaultValue: root.defaultDepth
        xEnabled: false
        xValue: root.threshold
        yValue: root.threshold - root.depth
        onEdited: value => root.depthEdited(value)
        onCommitted: value => root.depthCommitted(value)
    }
}
