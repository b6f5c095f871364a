import QtQuick
import TambleClient.Control 1.0

/*! Icon in front of the text of an entry. */
RIcon {
    id: root

    readonly property var entry: root.parent

    x: root.entry.mirrored ? root.entry.width - root.width - 12 * RThemeValues.unit : 12 * RThemeValues.unit
    y: (root.entry.height - root.height) / 2
    key: root.entry.entryIcon
    sizeClass: "XS"
    ssIconForeground: root.entry.textColor
    opacity: root.entry.enabled ? 1 : 0.4
}
