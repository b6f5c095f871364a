import QtQuick
import QtQml
import TambleClient.Control 1.0

/*! Headers and captions of accordions in each state that the sheets know, whatever the pointer does. */
RAccordion {
    id: root

    readonly property var looks: [
        { title: qsTr("plain"), states: [] },
        { title: qsTr("hovered"), states: ["hovered"] },
        { title: qsTr("pressed"), states: ["pressed"] },
        { title: qsTr("focus"), states: ["focus"] },
        { title: qsTr("disabled"), states: ["disabled"] }
    ]

    height: theme.dp(520)
    reorderable: true

    // qmllint disable unqualified
    Repeater {
        model: root.looks

        RAccordionItem {
            id: item

            required property var modelData

            title: modelData.title
            iconKey: "mute"

            Instantiator {
                model: item.modelData.states

                Binding {
                    required property string modelData

                    target: item.RStyleSet.stateHelper
                    property: modelData
                    value: true
                }
            }
        }
    }
    Repeater {
        model: root.looks

        RAccordionSectionHeader {
            id: caption

            required property var modelData

            title: modelData.title
            collapsible: true

            Instantiator {
                model: caption.modelData.states

                Binding {
                    required property string modelData

                    target: caption.RStyleSet.stateHelper
                    property: modelData
                    value: true
                }
            }
        }
    }
    // qmllint enable unqualified
    RAccordionSectionHeader {
        title: qsTr("not collapsible")
    }
    RAccordionItem {
        title: qsTr("always open, with a long title that has no room in its header")
        subtitle: qsTr("and a second line that has none either, however small its letters are")
        expandable: false
        expanded: true

        RText {
            text: qsTr("Body")
        }
    }
    RAccordionItem {
        title: qsTr("without a grip")
        draggable: false
    }
}
