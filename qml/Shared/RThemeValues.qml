pragma Singleton

import QtQuick

/*! What controls read of the theme object, as typed properties: bindings to these are compiled, those to a context
    property are not. */
QtObject {
    /*! Pixels per density-independent unit. */
    readonly property real unit: theme.dp(1)
    readonly property bool hoverEnabled: theme.hoverEnabled
    readonly property int renderType: theme.nativeRendering ? Text.NativeRendering : Text.QtRendering
    readonly property string fontFamily: theme.fontFamily
    readonly property int fontSizeXXS: theme.fontSizeXXS
    readonly property int fontSizeXS: theme.fontSizeXS
    readonly property int fontSizeS: theme.fontSizeS
    readonly property int fontSizeM: theme.fontSizeM
    readonly property int fontSizeL: theme.fontSizeL
    readonly property int fontSizeXL: theme.fontSizeXL
    readonly property int fontSizeXXL: theme.fontSizeXXL

    /*! The size of a font that a page asks for, within what can be drawn without filling the memory. */
    function fontPixels(size: real): int {
        return Math.max(1, Math.min(1000, size || 1))
    }
}
