import QtQuick
import TambleClient.Control 1.0

/*! Shows a view blurred, in its place. Without shaders it is veiled. */
Item {
    id: root

    /*! The view. */
    property Item source

    RStyleSet.typeName: "RScreen2"

    property color ssBackground: root.RStyleSet.props.background

    readonly property bool drawsShaders: root.GraphicsInfo.api !== GraphicsInfo.Software

    anchors.fill: parent

    ShaderEffectSource {
        id: picture
        anchors.fill: parent
        sourceItem: root.drawsShaders ? root.source : null
        hideSource: true
        visible: false
    }
    ShaderEffect {
        id: across

        property ShaderEffectSource source: picture
        property size delta: Qt.size(1 / Math.max(1, root.width), 0)

        anchors.fill: parent
        visible: false
        layer.enabled: root.drawsShaders
        fragmentShader: "qrc:/shaders/blur.frag.qsb"
    }
    ShaderEffect {
        property ShaderEffect source: across
        property size delta: Qt.size(0, 1 / Math.max(1, root.height))

        anchors.fill: parent
        visible: root.drawsShaders
        fragmentShader: "qrc:/shaders/blur.frag.qsb"
    }
    Rectangle {
        anchors.fill: parent
        visible: !root.drawsShaders
        color: root.ssBackground
        opacity: 0.75
    }
}
