import QtQuick
import TambleClient.Control 1.0

/*! Tells that the user has to wait: eight dots that turn once a second, the later the fainter, and a text below. It
    shows only 300 ms after `running` is set, so that short waits do not flicker. */
RLoadingAnimationBase {
    id: root

    RStyleSet.typeName: "RFocusRectangle"

    property color ssBorderColor: root.RStyleSet.props.border

    /*! How many dots there are (`count`), and the pixels of the ring (`size`) and of a dot (`dot`). */
    readonly property int count: 8
    readonly property real size: 32 * RThemeValues.unit
    readonly property real dot: 6 * RThemeValues.unit

    implicitWidth: Math.max(root.size, words.visible ? words.implicitWidth : 0)
    implicitHeight: root.size + (words.visible ? words.implicitHeight + 4 * RThemeValues.unit : 0)

    contentItem: Item { // qmllint disable deferred-property-id
        opacity: root.shown ? 1 : 0

        Item {
            id: ring
            x: (parent.width - width) / 2
            width: root.size
            height: root.size

            RotationAnimator on rotation {
                from: 0
                to: 360
                duration: 1000
                loops: Animation.Infinite
                running: root.turning
            }
            // qmllint disable unqualified
            Repeater {
                model: root.count

                Rectangle {
                    required property int index
                    readonly property real angle: 2 * Math.PI * index / root.count

                    x: (ring.width - width) / 2 * (1 + Math.sin(angle))
                    y: (ring.height - height) / 2 * (1 - Math.cos(angle))
                    width: root.dot
                    height: root.dot
                    radius: width / 2
                    color: root.ssBorderColor
                    opacity: (index + 1) / root.count
                }
            }
            // qmllint enable unqualified
        }
        RText {
            id: words
            y: ring.height + 4 * RThemeValues.unit
            width: parent.width
            visible: root.text.length > 0
            text: root.text
            font.pixelSize: RThemeValues.fontSizeS
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            maximumLineCount: 100 // a word without end takes seconds to wrap
            elide: Text.ElideRight
        }
    }
}
