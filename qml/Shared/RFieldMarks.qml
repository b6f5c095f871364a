import QtQuick
import TambleClient.Control 1.0

/*! What marks a field besides its colours: a dot while a text is not entered or not confirmed, a triangle while devices
    differ, a sign while the text is not acceptable. */
Item {
    id: root

    /*! Whether something was typed and not entered. */
    required property bool unentered
    /*! Whether the device has acknowledged; the dot pulses while not. */
    required property bool confirmed
    /*! Whether all devices agree. */
    required property bool consistent
    /*! Whether the text is not acceptable. */
    required property bool invalid
    /*! Of the three marks: `dotColor`, `flagColor`, `warningColor`. */
    required property color dotColor
    required property color flagColor
    required property color warningColor

    Rectangle {
        id: dot
        x: root.width - 10 * RThemeValues.unit
        y: (root.height - dot.height) / 2
        width: 6 * RThemeValues.unit
        height: dot.width
        radius: dot.width / 2
        color: root.dotColor
        visible: root.unentered || !root.confirmed

        SequentialAnimation on opacity {
            running: !root.confirmed
            loops: Animation.Infinite
            alwaysRunToEnd: true
            NumberAnimation { to: 0.3; duration: 500 }
            NumberAnimation { to: 1; duration: 500 }
        }
    }

    RIcon {
        x: root.width - 20 * RThemeValues.unit
        y: (root.height - height) / 2
        key: "warning"
        sizeClass: "XXS"
        ssIconForeground: root.warningColor
        visible: root.invalid
    }

    // A triangle: the quarter of a square that stands on its tip.
    Item {
        width: 8 * RThemeValues.unit
        height: width
        clip: true
        visible: !root.consistent

        Rectangle {
            x: -width / 2
            y: -width / 2
            width: parent.width * Math.SQRT2
            height: width
            rotation: 45
            color: root.flagColor
            antialiasing: true
        }
    }
}
