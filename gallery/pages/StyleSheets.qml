import QtQuick
import Gallery
import TambleClient.Control 1.0

GalleryPage {
    id: root

    property Item inspected: plain
    property string report

    function inspect(sample: Item) {
        root.inspected = sample
        info.text = sample.RStyleSet.styleInfo
    }

    description: qsTr("Choose a style file, or edit one in %1 and save: the samples follow. Point at a sample to see the rules that reach it, the strongest first.").arg(String(GalleryFiles.styleDirectory).replace("file://", ""))

    RStyleEngineSetup {
        id: setup
        engine.stylePath: GalleryFiles.styleDirectory
        engine.defaultStyleSheetSource: GalleryFiles.styleDirectory + "/base.style"
        engine.onException: (type, message) => root.report += "%1: %2\n".arg(type).arg(message)
        engine.onStyleChanged: root.inspect(root.inspected)
    }

    Row {
        spacing: 24

        Column {
            width: 220
            spacing: 4

            GalleryText {
                text: qsTr("Style files")
                font.bold: true
            }
            StyleFileEntry {
                text: qsTr("none")
                checked: true
                onClicked: {
                    setup.engine.styleName = ""
                    setup.engine.styleSheetSource = ""
                }
            }
            Repeater {
                model: setup.engine.availableStyles

                StyleFileEntry {
                    required property string modelData
                    text: modelData
                    onClicked: setup.engine.styleName = modelData // qmllint disable unqualified
                }
            }
        }

        Rectangle {
            id: samples

            property color ssBackground: samples.RStyleSet.props.color("background")
            property color ssLineColor: samples.RStyleSet.props.color("line")

            RStyleSet.typeName: "Samples"
            width: 352
            height: 240
            color: samples.ssBackground
            border.color: samples.ssLineColor

            Grid {
                anchors.centerIn: parent
                columns: 2
                spacing: 16

                StyleSample {
                    id: plain
                    label: qsTr("plain")
                    onEntered: root.inspect(plain)
                }
                StyleSample {
                    id: selectable
                    label: qsTr("selectable")
                    selected: true
                    onClicked: selected = !selected
                    onEntered: root.inspect(selectable)
                }
                StyleSample {
                    id: red
                    label: qsTr("class red")
                    RStyleSet.name: "red"
                    onEntered: root.inspect(red)
                }
                StyleSample {
                    id: disabled
                    label: qsTr("disabled")
                    enabled: false
                }
                StyleSample {
                    id: asking
                    label: qsTr("asks for \"glow\"")
                    onEntered: root.inspect(asking)
                    onClicked: asking.RStyleSet.props.color("glow")
                }
            }
        }
    }

    GalleryText {
        text: qsTr("Rules")
        font.bold: true
    }
    GalleryText {
        id: info
        width: parent.width
        color: GalleryPalette.subtleText
        font.family: "monospace"
        font.pixelSize: 12
        wrapMode: Text.WrapAnywhere
    }
    GalleryText {
        text: qsTr("Reports of the style engine")
        font.bold: true
    }
    GalleryText {
        width: parent.width
        text: root.report.length > 0 ? root.report : qsTr("none; click the sample that asks for a key no sheet sets")
        color: GalleryPalette.subtleText
        font.pixelSize: 12
        wrapMode: Text.WordWrap
    }
}
