import QtQuick
import QtQuick.Templates as T
import Gallery

/*! Where everything stands: the devices and the loudspeakers that they drive, to be arranged and watched. */
FestivalPage {
    title: qsTr("Stage")

    // The plan keeps a height that hands can use.
    Flickable {
        id: view
        anchors.fill: parent
        contentHeight: Math.max(view.height, plan.y + theme.dp(176))
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        T.ScrollBar.vertical: ScrollHandle {}

        StageTools {
            id: tools
            width: view.width
            view: plan
        }
        StageView {
            id: plan
            y: tools.height + theme.dp(16)
            width: view.width - (view.contentHeight > view.height ? theme.dp(12) : 0)
            height: view.contentHeight - y
            focus: true
            readOnly: Festival.showRuns
        }
        FocusScroller {
            view: view
        }
    }
}
