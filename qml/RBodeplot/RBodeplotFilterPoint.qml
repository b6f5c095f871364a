import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Handle of a filter: a disc with a label above the dot that marks the filter's frequency and gain, at three quarters
    of the height. The curve that owns it moves it. */
RPlotHandle {
    id: root

    /*! Position among the handles of the curve, from 0. */
    property int index: 0
    /*! What the filter has: `quality` (Q), `frequency` in Hz, `gain` in dB. */
    property real quality: 0
    property real frequency: 0
    property real gain: 0
    /*! Whether the response depends on the gain (`hasGain`) and on the Q (`hasQuality`); they are then part of the
        description. */
    property bool hasGain: true
    property bool hasQuality: true
    /*! Shows the Q in the bubble, while it is being changed. */
    property bool showQuality: false

    /*! Texts for the bubble: `qualityText`, `gainText` and `placeText`, which is frequency and gain. */
    readonly property string qualityText: qsTr("Q %1").arg(root.quality.toFixed(1))
    readonly property string gainText: qsTr("%1 dB").arg((root.gain >= 0 ? "+" : "") + root.gain.toFixed(1))
    readonly property string placeText: qsTr("%1 Hz").arg(Math.round(root.frequency)) + (root.hasGain ? ", " + root.gainText : "")

    selected: false
    y: root.place.y - root.height * 0.75
    implicitHeight: 32 * RThemeValues.unit
    // Inside of the plot, so that neither is the disc cut off at its ends nor are the numbers there hidden.
    discX: root.parent ? Math.max(-root.x, Math.min(0, root.parent.width - root.x - root.discSize)) : 0
    discY: root.parent ? Math.max(-root.y, Math.min(0, root.parent.height - root.y - root.discSize)) : 0
    discText: root.label
    valueText: root.placeText + (root.hasQuality ? ", " + root.qualityText : "")
    bubbleText: root.showQuality ? root.qualityText : root.placeText
    bubbleVisible: root.showQuality || root.dragging || root.activeFocus && root.keyFocus
    jumpsUnderPointer: true
    Accessible.name: qsTr("Filter %1").arg(root.label !== "" ? root.label : root.index + 1)

    Rectangle {
        x: (parent.width - width) / 2
        y: parent.height * 0.75 - height / 2
        width: 8 * RThemeValues.unit
        height: width
        radius: width / 2
        opacity: root.visiblePoint ? 1 : 0.4
        color: root.stateColor
    }
}
