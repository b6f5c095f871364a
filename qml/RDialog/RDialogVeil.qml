import QtQuick
import TambleClient.Control 1.0

/*! Covers the body of a dialog that is busy. */
Rectangle {
    id: root

    RStyleSet.typeName: "RDialog"

    property color ssBackground: root.RStyleSet.props.background

    /*! What it stands in. */
    readonly property RDialogFrameBase frame: root.parent as RDialogFrameBase

    anchors.fill: root.frame.view
    color: Qt.alpha(root.ssBackground, 0.75)

    RLoadingAnimation {
        anchors.centerIn: parent
        running: true
    }
}
