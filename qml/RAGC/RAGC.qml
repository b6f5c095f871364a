import QtQuick
import "../Shared"
import TambleClient.Control 1.0
import "../RLimiter"

/*! Curve of an automatic gain control with handles for its target level, threshold, knee and ratio, and a meter of its
    gain. The plot shows the levels shifted by `thresholdOffset`. */
RDynamicsPlot {
    id: root

    property alias calculatorActive: calculator.calculatorActive
    property alias agcBypassed: calculator.agcBypassed
    property alias levelIn: calculator.levelIn
    property alias levelInMin: calculator.levelInMin
    property alias levelInMax: calculator.levelInMax
    /*! Relative to the target level. */
    property alias threshold: calculator.threshold
    property alias thresholdMin: calculator.thresholdMin
    property alias thresholdMax: calculator.thresholdMax
    property alias thresholdOffset: calculator.thresholdOffset
    property alias kneeIn: calculator.kneeIn
    property alias kneeInMin: calculator.kneeInMin
    property alias kneeInMax: calculator.kneeInMax
    property alias ratio: calculator.ratio
    property alias ratioMin: calculator.ratioMin
    property alias ratioMax: calculator.ratioMax
    readonly property alias values: calculator.values
    /*! Where a double click on a handle leads, undefined for nowhere: `defaultLevelIn`, `defaultThreshold` and
        `defaultKneeIn` in dB, `defaultRatio`. */
    property var defaultLevelIn: 0
    property var defaultThreshold: -20
    property var defaultKneeIn: 6
    property var defaultRatio: 3
    /*! Gain at present, in dB. */
    property real gain: 0
    /*! Whether there is a meter of `gain`. */
    property bool gainMeterVisible: false
    /*! The meter reaches this far up and down. */
    property real gainRange: 20

    /*! The target level as the plot shows it, in dB. */
    readonly property real targetLevel: root.thresholdOffset + root.levelIn

    /*! The user changes the target level (`levelInEdited`) and has finished (`levelInCommitted`), in dB. */
    signal levelInEdited(real value)
    signal levelInCommitted(real value)
    /*! The user changes the threshold (`thresholdEdited`) and has finished (`thresholdCommitted`), in dB. */
    signal thresholdEdited(real value)
    signal thresholdCommitted(real value)
    /*! The user changes the knee (`kneeInEdited`) and has finished (`kneeInCommitted`), in dB. */
    signal kneeInEdited(real value)
    signal kneeInCommitted(real value)
    /*! The user changes the ratio (`ratioEdited`) and has finished (`ratioCommitted`). */
    signal ratioEdited(real value)
    signal ratioCommitted(real value)

    title: qsTr("AGC")
    xFrom: root.thresholdOffset + root.thresholdMin
    xTo: root.thresholdOffset + root.thresholdMax
    active: root.calculatorActive
    bypassed: root.agcBypassed
    points: root.values
    sideRoom: meter.implicitWidth

    RAGCCalculator {
        id: calculator
        levelInMin: -20
        levelInMax: 20
        threshold: -20
        thresholdMin: -60
        thresholdMax: 20
        kneeIn: 6
        kneeInMin: 0
        kneeInMax: 20
        ratio: 3
        ratioMin: 1
        ratioMax: 10
        agcBypassed: false
        calculatorActive: true
    }
    // qmllint disable unqualified
    Loader {
        id: meter
        x: parent.width + 2 * root.margin
        height: parent.height
        active: root.gainMeterVisible
        sourceComponent: RGainMeter {
            split: true
            value: root.gain
            valueMin: -root.gainRange
            valueMax: root.gainRange
            valueMinYellow: -root.gainRange / 2
            valueMinRed: -root.gainRange
            valueMaxYellow: root.gainRange / 2
            valueMaxRed: root.gainRange
            label: qsTr("Gain")
        }
    }
    // qmllint enable unqualified
    RParameterHandle {
        function valueAt(x: real, y: real): real {
            return RPlotRules.ratioOfLine(root.thresholdMax - root.levelIn, y - root.targetLevel, root.ratioMax)
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
        xValue: root.xTo
        yValue: root.targetLevel + (root.thresholdMax - root.levelIn) / root.ratio
        onEdited: value => root.ratioEdited(value)
        onCommitted: value => root.ratioCommitted(value)
    }
    RParameterHandle {
        function valueAt(x: real, y: real): real {
            return (x + y) / 2 - root.thresholdOffset
        }

        plot: root
        target: calculator
        name: "levelIn"
        label: qsTr("Target")
        unit: root.xUnit
        defaultValue: root.defaultLevelIn
        xValue: root.targetLevel
        yValue: root.targetLevel
        onEdited: value => root.levelInEdited(value)
        onCommitted: value => root.levelInCommitted(value)
    }
    RParameterHandle {
        function valueAt(x: real, y: real): real {
            return x - root.targetLevel
        }

        plot: root
        target: calculator
        name: "threshold"
        label: qsTr("Threshold")
        defaultValue: root.defaultThreshold
        yEnabled: false
        xValue: root.targetLevel + root.threshold
        yValue: root.targetLevel + root.threshold / root.ratio
        onEdited: value => root.thresholdEdited(value)
        onCommitted: value => root.thresholdCommitted(value)
    }
    RParameterHandle {
        function valueAt(x: real, y: real): real {
            return root.targetLevel + root.threshold - x
        }

        plot: root
        target: calculator
        name: "kneeIn"
        label: qsTr("Knee")
        defaultValue: root.defaultKneeIn
        yEnabled: false
        xValue: root.targetLevel + root.threshold - root.kneeIn
        yValue: xValue
        onEdited: value => root.kneeInEdited(value)
        onCommitted: value => root.kneeInCommitted(value)
    }
}
