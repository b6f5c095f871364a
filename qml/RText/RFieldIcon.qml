import QtQuick
import TambleClient.Control 1.0

/*! The picture in front of a field's text. */
RIcon {
    id: root

    required property RTextFieldBase field

    x: (root.field.LayoutMirroring.enabled ? root.field.width - 24 * RThemeValues.unit : 8 * RThemeValues.unit)
    y: (root.field.height - root.height) / 2
    key: root.field.iconKey
    sizeClass: "XS"
    ssIconForeground: root.field.color
    Accessible.ignored: true
}
