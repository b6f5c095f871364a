import QtQuick
import QtTest
import TambleClient.Control 1.0

TestCase {
    id: root
    name: "RStyleDebugMouseArea"
    when: windowShown
    visible: true
    width: 200
    height: 200

    Item {
        id: page
        width: 100
        height: 100

        Item {
            id: covered
            width: 50
            height: 50
        }
        Item {
            id: top
            width: 50
            height: 50

            MouseArea {
                id: inner
                property int clicks: 0
                width: 20
                height: 20
                onClicked: ++clicks
            }
        }
        RStyleDebugMouseArea {
            id: area
        }
    }

    function test_findsWhatItCovers() {
        mouseMove(page, 10, 10)
        tryCompare(area, "containsMouse", true)
        compare(area.childUnderPointer(page), top)
        compare(area.childUnderPointer(top), inner)
        compare(area.childUnderPointer(inner), null)
        mouseMove(page, 80, 80)
        compare(area.childUnderPointer(page), null)
    }

    function test_clicksGoThrough() {
        mouseClick(page, 10, 10)
        compare(inner.clicks, 1)
    }
}
