import QtQuick

/*! Background of a field: a rectangle with a line along its bottom. */
Rectangle {
    id: root

    /*! Colour and thickness of the line, in pixels. */
    property alias lineColor: line.color
    property alias lineWidth: line.height

    Rectangle {
        id: line
        y: root.height - line.height
        width: root.width
    }
}
