import QtQuick
import TambleClient.Control 1.0

/*! One full page of the client, with a layer for its flyouts.

    Keys: Ctrl+F6 goes to the next flyout. */
RScreenTemplate {
    id: root

    RStyleSet.typeName: "RScreen2"

    /*! What assistive tools call the page. */
    property string title: ""
    /*! False pauses the page: it is neither seen nor reached. */
    property bool active: true
    /*! Distance in pixels of the content from the edges. */
    property real padding: 0
    /*! The items of the page. */
    default property alias content: body.data
    /*! Above the content; what floats over the page goes here. */
    readonly property Item flyoutLayer: layer

    property color ssBackground: root.RStyleSet.props.background

    /*! The page goes on (`activated`) or pauses (`deactivated`). */
    signal activated()
    signal deactivated()

    /*! Gives everything the size that the screen asks for, if that is wanted. */
    function applyZoom() {
        if (root.autoZoom && typeof theme !== "undefined")
            theme.setDpAutoZoomFactor(root.autoZoomFactor)
    }

    width: root.parent ? root.parent.width : 0
    height: root.parent ? root.parent.height : 0
    visible: root.active
    enabled: root.active
    Accessible.role: Accessible.Pane
    Accessible.name: root.title

    Keys.onPressed: event => event.accepted = event.key === Qt.Key_F6 && event.modifiers === Qt.ControlModifier && layer.focusNext()
    onActiveChanged: {
        if (root.active)
            root.activated()
        else
            root.deactivated()
    }
    onAutoZoomChanged: root.applyZoom()
    onAutoZoomFactorChanged: root.applyZoom()
    Component.onCompleted: root.applyZoom()

    Rectangle {
        anchors.fill: parent
        color: root.ssBackground
    }
    Item {
        id: body
        anchors.fill: parent
        anchors.margins: root.padding
    }
    RFlyoutLayer {
        id: layer
        anchors.fill: parent
    }
}
