import QtQuick

/*! Three colours that no style sheet has a say in. */
Item {
    property color background: "#005691"
    property color foreground: "#FFFFFF"
    property color line: "#282828"
}
