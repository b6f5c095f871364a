import QtQuick
import TambleClient.Control 1.0

/*! The picture beside the text of a button that chooses a page, or in its place. */
RIcon {
    id: root

    RStyleSet.typeName: "RIcon"

    readonly property RAppBarNavButtonBase button: root.parent as RAppBarNavButtonBase
    readonly property Text words: root.button.contentItem as Text
    /*! Pixels at each side of the icon and the text together. */
    readonly property real margin: (root.button.width - root.button.iconSpace - root.words.contentWidth) / 2
    readonly property real start: root.button.textHidden ? (root.button.width - root.width) / 2 : root.margin

    x: root.button.mirrored ? root.button.width - root.start - root.width : root.start
    y: (root.button.height - root.height) / 2
    key: root.button.iconKey
    sizeClass: root.button.forSubPage ? "XS" : "S"
    // The rows of sub-pages have no rules for icons.
    ssIconForeground: root.button.forSubPage ? root.button.ssColor : root.RStyleSet.props.foreground
}
