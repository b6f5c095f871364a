import QtQuick
import TambleClient.Control 1.0
import "ParameterText.js" as ParameterText

/*! Speech brought to one level. */
DynamicsTile {
    id: root

    property real levelIn: 10
    property real threshold: -24
    property real kneeIn: 6
    property real ratio: 3

    title: "RAGC"
    channel: 10
    points: panel.values
    release: 800
    parameters: [
        [qsTr("Target"), ParameterText.withUnit(panel.levelIn, qsTr("dBu"))],
        [qsTr("Threshold"), ParameterText.withUnit(panel.threshold, qsTr("dB"))],
        [qsTr("Knee"), ParameterText.withUnit(panel.kneeIn, qsTr("dB"))],
        [qsTr("Ratio"), qsTr("%1 : 1").arg(panel.ratio.toFixed(1))],
    ]

    RAGC {
        id: panel
        anchors.fill: parent
        settleTime: root.settleTime
        calculatorActive: root.active
        agcBypassed: root.bypassed
        levelVisible: true
        inputLevel: root.inputLevel
        gainMeterVisible: true
        gain: root.gain
        levelIn: root.levelIn
        threshold: root.threshold
        kneeIn: root.kneeIn
        ratio: root.ratio
        onLevelInEdited: value => root.edit("levelIn", value)
        onThresholdEdited: value => root.edit("threshold", value)
        onKneeInEdited: value => root.edit("kneeIn", value)
        onRatioEdited: value => root.edit("ratio", value)
    }
}
