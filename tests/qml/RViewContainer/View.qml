import QtQuick

Item {
    readonly property string where: "a file"
}
