import QtQuick
import Gallery
import TambleClient.Control 1.0

GalleryPage {
    id: root

    description: qsTr("Every kind of button in every state and class. The states are forced; all buttons follow the pointer as well.")

    TileGrid {
        Section {
            title: qsTr("To try")
            note: qsTr("Amber is what several devices do not agree on.")

            LiveButtons {}
        }
        Section {
            title: qsTr("Crosspoints")
            note: qsTr("Click, or walk with the arrow keys and press Space.")

            CrosspointMatrix {}
        }
        Section {
            title: qsTr("RButtonRow")

            ButtonRows {}
        }
        Section {
            title: qsTr("Rotated and mirrored")

            RotatedButtons {}
            MirroredButtons {}
            MirroredButtons {
                mirrored: true
            }
        }
        StateMatrix {
            title: "RButton"
            sample: RButton {
                text: qsTr("Button")
            }
        }
        StateMatrix {
            title: "RButtonIcon"
            sample: RButtonIcon {
                label: qsTr("Mute")
                iconItem.key: "mute"
            }
        }
        StateMatrix {
            title: "RButtonIconLabel"
            sample: RButtonIconLabel {
                text: qsTr("Link")
                iconItem.key: "link"
            }
        }
        StateMatrix {
            title: qsTr("RButtonIconLabel with showIcon")
            sample: RButtonIconLabel {
                text: qsTr("Link")
                showIcon: true
                iconItem.key: "link"
            }
        }
        StateMatrix {
            title: "RButtonIconLabelH"
            sample: RButtonIconLabelH {
                text: qsTr("Mic")
                iconItem.key: "microphone"
                iconItem.sizeClass: "XS"
            }
        }
        StateMatrix {
            title: "RInconsistentButton"
            sample: RInconsistentButton {
                text: qsTr("Low cut")
            }
        }
        StateMatrix {
            title: "RButtonIconLabelV"
            sample: RButtonIconLabelV {
                text: qsTr("Preset")
                iconItem.key: "preset"
            }
        }
        StateMatrix {
            title: "RButtonLabelText"
            sample: RButtonLabelText {
                text: qsTr("Gain")
                textSub: qsTr("-6.0 dB")
            }
        }
        StateMatrix {
            title: "RButtonSwitch"
            sample: RButtonSwitch {
                label: qsTr("Switch")
            }
        }
        StateMatrix {
            title: "RInconsistentButtonSwitch"
            sample: RInconsistentButtonSwitch {
                label: qsTr("Low cut")
            }
        }
    }
}
