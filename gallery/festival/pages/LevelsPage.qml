import QtQuick
import QtQuick.Templates as T
import Gallery
import TambleClient.Control 1.0

/*! The mixers: a strip for each channel, and the main mix, whose filters a flyout shows. */
FestivalPage {
    id: root

    property int mixer: GalleryInstallation.firstMixer

    title: qsTr("Levels")
    listening: true

    function showEqualizer() {
        equalizer.active = true
        const flyout = equalizer.item as RFlyoutWindow
        flyout.open()
    }

    // Faders keep a length that hands can use.
    Flickable {
        id: view
        anchors.fill: parent
        contentHeight: Math.max(view.height, strips.y + theme.dp(280))
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        T.ScrollBar.vertical: ScrollHandle {}

        MixerBar {
            id: bar
            width: view.width
            mixer: root.mixer
            onMixerChosen: mixer => root.mixer = mixer
            onEqualizerAsked: root.showEqualizer()
        }
        MixerStrips {
            id: strips
            y: bar.height + theme.dp(16)
            width: view.width - (view.contentHeight > view.height ? theme.dp(12) : 0)
            height: view.contentHeight - y
            focus: true
            mixer: root.mixer
        }
        FocusScroller {
            view: view
        }
    }
    // Made when it is first asked for.
    // qmllint disable unqualified
    Loader {
        id: equalizer
        active: false
        sourceComponent: RFlyoutWindow {
            title: qsTr("Equaliser of the main mix")
            iconKey: "eq"
            rememberKey: "equalizer"
            padding: theme.dp(8)

            EqualizerPanel {
                width: Math.min(theme.dp(760), root.width - theme.dp(32))
                plotHeight: theme.dp(240)
            }
        }
    }
    // qmllint enable unqualified
}
