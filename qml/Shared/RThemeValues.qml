pragma Singleton

import QtQuick
import "../RTheme"

/*! What controls read of the theme object, as typed properties: bindings to these are compiled, those to a context
    property are not. Before a page installs a theme, and for what the page's own lacks, the defaults of RTheme count. */
QtObject {
    id: root

    /*! The theme that counts for what the page's own lacks. */
    readonly property RTheme defaults: RTheme {}
    /*! Category of its warnings. */
    readonly property LoggingCategory log: LoggingCategory { name: "tamble.control" }
    /*! Asked for its type first: a name that nobody has set yet cannot be read. */
    readonly property var source: typeof theme === "undefined" ? root.defaults : theme ?? root.defaults

    /*! Pixels per density-independent unit. */
    readonly property real unit: typeof root.source.dp === "function" ? root.source.dp(1) : root.defaults.dp(1)
    /*! Room between neighbours in a row in pixels: one density-independent unit, rounded so that none gets lost. */
    readonly property real gap: Math.max(1, Math.round(root.unit))
    /*! Whether controls have a hover look. */
    readonly property bool hoverEnabled: root.source.hoverEnabled ?? root.defaults.hoverEnabled
    /*! How texts are rendered. */
    readonly property int renderType: root.source.nativeRendering ?? root.defaults.nativeRendering ? Text.NativeRendering : Text.QtRendering
    /*! Family of all texts. */
    readonly property string fontFamily: root.source.fontFamily ?? root.defaults.fontFamily
    /*! Sizes of texts in pixels: `fontSizeXXS`, `fontSizeXS`, `fontSizeS`, `fontSizeM`, `fontSizeL`, `fontSizeXL`,
        `fontSizeXXL`. */
    readonly property int fontSizeXXS: root.source.fontSizeXXS ?? root.defaults.fontSizeXXS
    readonly property int fontSizeXS: root.source.fontSizeXS ?? root.defaults.fontSizeXS
    readonly property int fontSizeS: root.source.fontSizeS ?? root.defaults.fontSizeS
    readonly property int fontSizeM: root.source.fontSizeM ?? root.defaults.fontSizeM
    readonly property int fontSizeL: root.source.fontSizeL ?? root.defaults.fontSizeL
    readonly property int fontSizeXL: root.source.fontSizeXL ?? root.defaults.fontSizeXL
    readonly property int fontSizeXXL: root.source.fontSizeXXL ?? root.defaults.fontSizeXXL

    /*! What a theme object must have. */
    readonly property var members: ["dp", "hoverEnabled", "nativeRendering", "fontFamily", "fontSizeXXS", "fontSizeXS", "fontSizeS", "fontSizeM", "fontSizeL", "fontSizeXL", "fontSizeXXL"]

    /*! The size of a font that a page asks for, within what can be drawn without filling the memory. */
    function fontPixels(size: real): int {
        return Math.max(1, Math.min(1000, Math.round(size) || 1))
    }

    /*! Warns when the page's theme object lacks something. */
    function tellWhatIsMissing() {
        const missing = root.members.filter(name => root.source[name] === undefined)
        if (missing.length > 0)
            console.warn(root.log, `The context property "theme" lacks ${missing.join(", ")}; controls take the defaults of RTheme. Make it an RTheme, or give it another name.`)
    }

    onSourceChanged: root.tellWhatIsMissing()
}
