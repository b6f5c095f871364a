import QtQuick
import TambleClient.Control 1.0

/*! Square pictogram of the icon set, in the colour that the style gives or a page or button sets. Screen readers see
    nothing of it; a page on which it stands alone gives it an Accessible.role and a name. */
Item {
    id: root

    /*! Name in the icon set. One that the set does not hold leaves the space empty. */
    property string key: ""
    /*! One of the words "XXS", "XS", "S", "M" and "L"; any other counts as "S". */
    property string sizeClass: "S"
    /*! False shows a picture in its own colours. */
    property alias useColorOverlay: image.tinted
    /*! Address of the picture, made of `key` and `size`; a page may set one of its own. */
    property alias source: image.source
    /*! Of the picture: `fillMode`, and its size in pixels, `imgWidth` by `imgHeight`. */
    property alias fillMode: image.fillMode
    property alias imgWidth: image.width
    property alias imgHeight: image.height

    /*! The sizes in density-independent units: `ssSizeXXS`, `ssSizeXS`, `ssSizeS`, `ssSizeM`, `ssSizeL`. */
    readonly property int ssSizeXXS: 8
    readonly property int ssSizeXS: 16
    readonly property int ssSizeS: 24
    readonly property int ssSizeM: 32
    readonly property int ssSizeL: 48
    property color ssIconForeground: root.RStyleSet.props.foreground

    /*! Edge length in density-independent units. */
    readonly property int size: {
        switch (root.sizeClass) {
        case "XXS":
            return root.ssSizeXXS
        case "XS":
            return root.ssSizeXS
        case "M":
            return root.ssSizeM
        case "L":
            return root.ssSizeL
        default:
            return root.ssSizeS
        }
    }

    implicitWidth: root.size * RThemeValues.unit
    implicitHeight: root.size * RThemeValues.unit

    RTintedImage {
        id: image
        x: (root.width - image.width) / 2
        y: (root.height - image.height) / 2
        width: root.width
        height: root.height
        source: root.key.length > 0 ? "qrc:/icons/" + root.key + "_" + root.size + "x" + root.size + ".png" : ""
        fillMode: Image.PreserveAspectFit
        tint: root.ssIconForeground
        enlargement: RThemeValues.unit
    }
}
