import QtQuick
import Gallery
import TambleClient.Control 1.0

GalleryPage {
    id: root

    readonly property var looks: [
        { title: "plain", states: [] },
        { title: "hovered", states: ["hovered"] },
        { title: "pressed", states: ["pressed"] },
        { title: "focus", states: ["focus"] },
        { title: "selected", states: ["selected"] },
        { title: "selected hovered", states: ["selected", "hovered"] },
        { title: "disabled", states: ["disabled"] }
    ]

    description: qsTr("The bar at the top of a client's window. Its buttons are one stop of the Tab key; Left and Right move within a row, Up and Down between the rows.")

    TileGrid {
        columns: 1

        Section {
            title: qsTr("To try")
            note: qsTr("Narrow the window, or drag the handle: the texts of the pages go first, then the row is flicked.")

            LiveBar {
                width: parent.width
            }
        }
    }
    TileGrid {
        Section {
            title: qsTr("For actions that interrupt a show")
            note: qsTr("Only a second press within three seconds counts.")

            GuardedStates {}
        }
        Section {
            title: qsTr("Progress and waiting")

            ProgressSamples {
                width: parent.width
            }
        }
        StateMatrix {
            title: "RAppBarStateButton"
            classes: ["", "red", "green"]
            sample: RAppBarStateButton {
                text: qsTr("ONLINE")
                subText: qsTr("12 of 12")
            }
        }
        StateMatrix {
            title: qsTr("RAppBarStateButton, flashing")
            classes: ["", "red", "green"]
            sample: RAppBarStateButton {
                text: qsTr("FAULT")
                iconKey: "warning"
                flashing: true
            }
        }
        StateMatrix {
            title: "RAppBarNavButton"
            classes: [""]
            looks: root.looks
            sample: RAppBarNavButton {
                text: qsTr("Mixer")
                iconKey: "mixer"
                badge: "3"
            }
        }
        StateMatrix {
            title: "RAppBarSubNavButton"
            classes: [""]
            looks: root.looks
            sample: RAppBarSubNavButton {
                text: qsTr("Inputs")
            }
        }
        StateMatrix {
            title: "RAppBarButton"
            classes: [""]
            looks: root.looks
            sample: RAppBarButton {
                label: qsTr("Messages")
                text: qsTr("Messages")
                iconKey: "info"
                badge: "128"
            }
        }
        Section {
            title: qsTr("Titles of groups")

            SectionHeaders {
                width: parent.width
            }
        }
    }
}
