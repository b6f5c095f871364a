import QtQuick
import "../Shared"
import TambleClient.Control 1.0
import "../RLimiter"

/*! Curve of a compressor with handles for its threshold, ratio and make-up gain, and a meter of its gain reduction. */
RDynamicsPlot {
    id: root

    property alias calculatorActive: calculator.calculatorActive
    property alias compressorBypassed: calculator.compressorBypassed
    property alias softKneeActive: calculator.softKneeActive
    property alias softKneeInDbu: calculator.softKneeInDbu
    property alias threshold: calculator.threshold
    property alias thresholdMin: calculator.thresholdMin
    property alias thresholdMax: calculator.thresholdMax
    property alias ratio: calculator.ratio
    property alias ratioMin: calculator.ratioMin
    property alias ratioMax: calculator.ratioMax
    property alias makeUpGain: calculator.makeUpGain
    property alias makeUpGainMin: calculator.makeUpGainMin
    property alias makeUpGainMax: calculator.makeUpGainMax
    readonly property alias values: calculator.values
    /*! Where a double click on a handle leads, undefined for nowhere: `defaultThreshold` and `defaultMakeUpGain` in dB,
        `defaultRatio`. */
    property var defaultThreshold: 0
    property var defaultRatio: 4
    property var defaultMakeUpGain: 0
    /*! Reduction at present, in dB, counted positive. */
    property real gainReduction: 0
    /*! Whether there is a meter of `gainReduction`. */
    property bool gainReductionVisible: false

    /*! Width of the knee in force, in dB; 0 for a corner. */
    readonly property real knee: root.softKneeActive && root.softKneeInDbu > 0 ? root.softKneeInDbu : 0

    /*! The user changes the threshold (`thresholdEdited`) and has finished (`thresholdCommitted`), in dB. */
    signal thresholdEdited(real value)
    signal thresholdCommitted(real value)
    /*! The user changes the ratio (`ratioEdited`) and has finished (`ratioCommitted`). */
    signal ratioEdited(real value)
    signal ratioCommitted(real value)
    /*! The user changes the make-up gain (`makeUpGainEdited`) and has finished (`makeUpGainCommitted`), in dB. */
    signal makeUpGainEdited(real value)
    signal makeUpGainCommitted(real value)

    /*! Output level for an input level, in dB. */
    function outputOf(input: real): real {
        return RPlotRules.compressorOutput(input, root.threshold, root.ratio, root.makeUpGain, root.knee)
    }

    title: qsTr("Compressor")
    xFrom: root.thresholdMin
    xTo: root.thresholdMax
    active: root.calculatorActive
    bypassed: root.compressorBypassed
    points: root.values
    sideRoom: meter.implicitWidth

    RCompressorCalculator {
        id: calculator
        thresholdMin: -60
        thresholdMax: 20
        ratio: 4
        ratioMin: 1
        ratioMax: 20
        makeUpGainMin: 0
        makeUpGainMax: 20
        softKneeInDbu: 6
        compressorBypassed: false
    }
    // qmllint disable unqualified
    Loader {
        id: meter
        x: parent.width + 2 * root.margin
        height: parent.height
        active: root.gainReductionVisible
        sourceComponent: RGainMeter {
            reverse: true
            value: root.gainReduction
            valueMin: 0
            valueMax: 20
            valueMinYellow: 10
            valueMinRed: 20
            label: qsTr("Gain reduction")
        }
    }
    // qmllint enable unqualified
    RParameterHandle {
        function valueAt(x: real, y: real): real {
            return y - x
        }

        plot: root
        target: calculator
        name: "makeUpGain"
        label: qsTr("Gain")
        defaultValue: root.defaultMakeUpGain
        xEnabled: false
        // The middle of the straight part below the knee.
        xValue: (root.thresholdMin + Math.min(root.threshold - root.knee / 2, root.thresholdMax)) / 2
        yValue: xValue + root.makeUpGain
        onEdited: value => root.makeUpGainEdited(value)
        onCommitted: value => root.makeUpGainCommitted(value)
    }
    RParameterHandle {
        function valueAt(x: real, y: real): real {
            return RPlotRules.ratioOfLine(root.thresholdMax - root.threshold, y - root.makeUpGain - root.threshold, root.ratioMax)
        }

        plot: root
        target: calculator
        name: "ratio"
        label: qsTr("Ratio")
        valueText: qsTr("%1 : 1").arg(shown)
        defaultValue: root.defaultRatio
        step: 0.1
        fineStep: 0.1
        xEnabled: false
        xValue: root.thresholdMax
        yValue: root.outputOf(root.thresholdMax)
        onEdited: value => root.ratioEdited(value)
        onCommitted: value => root.ratioCommitted(value)
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
        yValue: root.outputOf(root.threshold)
        onEdited: value => root.thresholdEdited(value)
        onCommitted: value => root.thresholdCommitted(value)
    }
}
