import QtQuick

Item {
    Timer {
        interval: 1500
        running: true
        onTriggered: Qt.quit()
    }
}
