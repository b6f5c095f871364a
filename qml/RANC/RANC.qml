import QtQuick
import "../Shared"
import TambleClient.Control 1.0
import "../RLimiter"

/*! Gain of an ambient noise compensation over the ambient level, with handles for both gains, the ambient threshold and
    the ratio, and a meter of the ambient level. The plot shows the levels shifted by `ambientThresholdOffset`. */
RDynamicsPlot {
    id: root

    property alias calculatorActive: calculator.calculatorActive
    property alias ancBypassed: calculator.ancBypassed
    property alias freezeGain: calculator.freezeGain
    property alias ambientThreshold: calculator.ambientThreshold
    property alias ambientThresholdMin: calculator.ambientThresholdMin
    property alias ambientThresholdMax: calculator.ambientThresholdMax
    property alias ambientThresholdOffset: calculator.ambientThresholdOffset
    property alias minimumGain: calculator.minimumGain
    property alias minimumGainMin: calculator.minimumGainMin
    property alias minimumGainMax: calculator.minimumGainMax
    property alias maximumGain: calculator.maximumGain
    property alias maximumGainMin: calculator.maximumGainMin
    property alias maximumGainMax: calculator.maximumGainMax
    /*! Gain per ambient level, dB per dB. */
    property alias ratio: calculator.ratio
    property alias ratioMin: calculator.ratioMin
    property alias ratioMax: calculator.ratioMax
    readonly property alias values: calculator.values
    /*! Where a double click on a handle leads, undefined for nowhere: `defaultAmbientThreshold`, `defaultMinimumGain`
        and `defaultMaximumGain` in dB, `defaultRatio`. */
    property var defaultAmbientThreshold: -20
    property var defaultMinimumGain: -10
    property var defaultMaximumGain: 10
    property var defaultRatio: 1
    /*! Ambient level at present. */
    property real ambientLevel: -80
    /*! Whether there is a meter of `ambientLevel`. */
    property bool ambientMeterVisible: false

    /*! Ambient level at which the rise begins, and at which it reaches the maximum gain. */
    readonly property real foot: root.ambientThresholdOffset + root.ambientThreshold
    /*! Ambient level in dB, as the plot shows it, at which the rise reaches the maximum gain. */
    readonly property real head: root.foot + (root.maximumGain - root.minimumGain) / root.ratio

    /*! The user changes the ambient threshold (`ambientThresholdEdited`) and has finished
        (`ambientThresholdCommitted`), in dB. */
    signal ambientThresholdEdited(real value)
    signal ambientThresholdCommitted(real value)
    /*! The user changes the minimum gain (`minimumGainEdited`) and has finished (`minimumGainCommitted`), in dB. */
    signal minimumGainEdited(real value)
    signal minimumGainCommitted(real value)
    /*! The user changes the maximum gain (`maximumGainEdited`) and has finished (`maximumGainCommitted`), in dB. */
    signal maximumGainEdited(real value)
    signal maximumGainCommitted(real value)
    /*! The user changes the ratio (`ratioEdited`) and has finished (`ratioCommitted`). */
    signal ratioEdited(real value)
    signal ratioCommitted(real value)

    title: qsTr("ANC")
    yUnit: "dB"
    xFrom: root.ambientThresholdOffset + root.ambientThresholdMin
    xTo: root.ambientThresholdOffset + root.ambientThresholdMax
    yFrom: root.minimumGainMin
    yTo: maximumGainHandle.maximum
    active: root.calculatorActive
    bypassed: root.ancBypassed
    frozen: root.freezeGain
    points: root.values
    lowerRoom: meter.active ? meter.height : 0

    RANCCalculator {
        id: calculator
        ambientThreshold: -20
        ambientThresholdMin: -60
        ambientThresholdMax: 20
        minimumGain: -10
        minimumGainMin: -20
        minimumGainMax: 20
        maximumGain: 10
        maximumGainMin: -20
        maximumGainMax: 20
        ratio: 1
        ratioMin: 0.1
        ratioMax: 10
        ancBypassed: false
        calculatorActive: true
    }
    // qmllint disable unqualified
    Loader {
        id: meter
        y: parent.height + root.bottomRoom - height
        width: parent.width
        height: 12 * RThemeValues.unit
        active: root.ambientMeterVisible
        sourceComponent: RMeter {
            objectName: "meter"
            horizontal: true
            value: root.ambientLevel
            valueMin: root.xFrom
            valueMax: root.xTo
            valueMinYellow: root.xTo
            valueMinRed: root.xTo
            Accessible.name: qsTr("Ambient level")
        }
    }
    // qmllint enable unqualified
    RParameterHandle {
        function valueAt(x: real, y: real): real {
            return y
        }

        plot: root
        target: calculator
        name: "minimumGain"
        label: qsTr("Minimum gain")
        unit: root.yUnit
        defaultValue: root.defaultMinimumGain
        xEnabled: false
        xValue: (root.xFrom + Math.max(root.xFrom, Math.min(root.foot, root.xTo))) / 2
        yValue: root.minimumGain
        onEdited: value => root.minimumGainEdited(value)
        onCommitted: value => root.minimumGainCommitted(value)
    }
    RParameterHandle {
        id: maximumGainHandle

        function valueAt(x: real, y: real): real {
            return y
        }

        plot: root
        target: calculator
        name: "maximumGain"
        label: qsTr("Maximum gain")
        unit: root.yUnit
        defaultValue: root.defaultMaximumGain
        xEnabled: false
        xValue: (root.xTo + Math.max(root.xFrom, Math.min(root.head, root.xTo))) / 2
        yValue: root.maximumGain
        onEdited: value => root.maximumGainEdited(value)
        onCommitted: value => root.maximumGainCommitted(value)
    }
    RParameterHandle {
        function valueAt(x: real, y: real): real {
            return RPlotRules.ratioOfLine(root.maximumGain - root.minimumGain, x - root.foot, root.ratioMax)
        }

        plot: root
        target: calculator
        name: "ratio"
        label: qsTr("Ratio")
        unit: qsTr("dB/dB")
        defaultValue: root.defaultRatio
        step: 0.1
        fineStep: 0.1
        yEnabled: false
        xValue: root.head
        yValue: root.maximumGain
        onEdited: value => root.ratioEdited(value)
        onCommitted: value => root.ratioCommitted(value)
    }
    RParameterHandle {
        function valueAt(x: real, y: real): real {
            return x - root.ambientThresholdOffset
        }

        plot: root
        target: calculator
        name: "ambientThreshold"
        label: qsTr("Ambient threshold")
        unit: root.xUnit
        defaultValue: root.defaultAmbientThreshold
        yEnabled: false
        xValue: root.foot
        yValue: root.minimumGain
        onEdited: value => root.ambientThresholdEdited(value)
        onCommitted: value => root.ambientThresholdCommitted(value)
    }
}
