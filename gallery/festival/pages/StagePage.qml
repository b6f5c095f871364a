import QtQuick
import Gallery

/*! Where everything stands: the devices and the loudspeakers that they drive, to be arranged and watched. */
FestivalPage {
    title: qsTr("Stage")

    StageTools {
        id: tools
        width: parent.width
        view: plan
    }
    StageView {
        id: plan
        y: tools.height + theme.dp(16)
        width: parent.width
        height: parent.height - y
        focus: true
        readOnly: Festival.showRuns
    }
}
