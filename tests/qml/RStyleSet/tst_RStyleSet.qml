import QtQuick
import QtQuick.Controls.Basic
import QtTest
import TambleClient.Control 1.0

TestCase {
    id: root
    name: "RStyleSet"
    when: windowShown
    visible: true
    width: 200
    height: 200

    RStyleEngineSetup {
        id: setup
        checker.active: false
        engine.defaultStyleSheetSource: Qt.resolvedUrl("paths.style")
    }

    component Button: Item {
        RStyleSet.typeName: "Button"
        property color background: RStyleSet.props.color("background")
    }
    Component {
        id: panelComponent
        Item {
            property alias button: innerButton
            RStyleSet.typeName: "Panel"
            Item {
                Button {
                    id: innerButton
                }
            }
        }
    }
    Component {
        id: buttonComponent
        Button {}
    }
    Component {
        id: itemComponent
        Item {}
    }
    Component {
        id: popupComponent
        Popup {
            readonly property Item button: contentItem.children[0]
            contentItem: Item {
                Button {}
            }
        }
    }
    Component {
        id: spyComponent
        SignalSpy {}
    }

    function spyOn(target: var, signalName: string): SignalSpy {
        return createTemporaryObject(spyComponent, root, { target: target, signalName: signalName })
    }

    function types(item: Item): var {
        return Array.from(item.RStyleSet.path, element => element.typeName)
    }

    function test_pathRunsFromTheSceneRoot() {
        const panel = createTemporaryObject(panelComponent, root)
        const path = types(panel.button)
        compare(path[0], "QQuickRootItem")
        compare(path.slice(-3), ["Panel", "QQuickItem", "Button"])
    }

    function test_descendantsAndChildrenOfAPanel() {
        const panel = createTemporaryObject(panelComponent, root)
        compare(panel.button.background, "#202020")
        verify(!panel.button.RStyleSet.props.isSet("border"), "an item stands between panel and button")
        const child = createTemporaryObject(buttonComponent, panel)
        compare(child.RStyleSet.props.color("border"), "#303030")
        compare(child.RStyleSet.props.string("frame"), "panel", "keys are inherited")
    }

    function test_statesFollowTheHelper() {
        const button = createTemporaryObject(buttonComponent, root)
        const helper = button.RStyleSet.stateHelper
        const props = spyOn(button.RStyleSet, "propsChanged")
        helper.hovered = true
        compare(button.RStyleSet.state.trim(), "hovered")
        compare(button.background, "#404040")
        compare(props.count, 1)
        helper.hovered = true
        compare(props.count, 1, "the same state again is no change")
        helper.hovered = false
        helper.readOnly = true
        compare(button.RStyleSet.state.trim(), "readonly")
        compare(button.background, "#606060")
        helper.pressed = true
        helper.active = true
        compare(button.RStyleSet.state, "pressed readonly active ")
    }

    function test_stateIsAppliedBeforeItsNotification() {
        const button = createTemporaryObject(buttonComponent, root)
        let seen
        button.RStyleSet.stateHelper.hoveredChanged.connect(() => seen = String(button.background))
        button.RStyleSet.stateHelper.hovered = true
        compare(seen, "#404040")
    }

    function test_nameOfAnAncestorReachesItsDescendants() {
        const panel = createTemporaryObject(panelComponent, root)
        const named = spyOn(panel.RStyleSet, "nameChanged")
        const placed = spyOn(panel.button.RStyleSet, "pathChanged")
        verify(!panel.button.RStyleSet.props.isSet("gap"))
        panel.RStyleSet.name = "dense  wide"
        compare(panel.button.RStyleSet.props.number("gap"), 2)
        compare(panel.button.RStyleSet.path.slice(-3)[0].classes, ["dense", "wide"])
        compare(placed.count, 1)
        panel.RStyleSet.name = "dense  wide"
        compare(named.count, 1)
        compare(placed.count, 1)
    }

    function test_unrootedItemsLeaveTheirDescendantsAlone() {
        const panel = createTemporaryObject(panelComponent, null)
        const button = panel.button
        compare(types(button), ["Panel", "QQuickItem", "Button"])
        panel.RStyleSet.name = "dense"
        compare(button.RStyleSet.path[0].classes, [])
        panel.parent = root
        compare(types(button)[0], "QQuickRootItem")
        compare(button.RStyleSet.props.number("gap"), 2)
    }

    function test_reparentingBelowUnstyledItems() {
        const holder = itemComponent.createObject(null)
        const button = buttonComponent.createObject(holder)
        compare(types(button), ["QQuickItem", "Button"])
        holder.parent = root
        compare(types(button)[0], "QQuickRootItem", "the button's own parent has not changed")
        const panel = createTemporaryObject(panelComponent, root)
        button.parent = panel
        compare(button.background, "#202020")
        button.parent = null
        compare(button.background, "#202020", "without a parent the last path stays")
        button.destroy()
        holder.destroy()
    }

    function test_changesInsideHandlersOfTheChange() {
        const panel = createTemporaryObject(panelComponent, root)
        const doomed = buttonComponent.createObject(panel)
        const other = createTemporaryObject(buttonComponent, panel)
        panel.button.RStyleSet.pathChanged.connect(() => {
            doomed.destroy()
            other.parent = root
            panel.RStyleSet.name = "dense"
        })
        panel.RStyleSet.name = "loose"
        wait(0)
        compare(panel.button.RStyleSet.props.number("gap"), 2)
    }

    function test_popupsAreScenesOfTheirOwn() {
        const popup = createTemporaryObject(popupComponent, root)
        verify(types(popup.button).indexOf("QQuickPopupItem") >= 0)
        compare(popup.button.RStyleSet.props.color("background"), "#707070")
        popup.open()
        tryVerify(() => popup.opened)
        compare(types(popup.button)[0], "QQuickRootItem")
        compare(popup.button.RStyleSet.props.color("background"), "#707070")
        popup.close()
        tryVerify(() => !popup.visible)
        compare(popup.button.RStyleSet.props.color("background"), "#707070")
    }

    function test_missingKeysGiveDefaults() {
        const button = createTemporaryObject(buttonComponent, root)
        const props = button.RStyleSet.props
        compare(props.color("none").valid, false)
        compare(props.number("none"), 0)
        compare(props.boolean("none"), false)
        compare(props.string("none"), "")
        compare(String(props.url("none")), "")
        compare(props.get("none"), undefined)
        compare(props.values("none"), [])
        verify(props.isValid() === props.isSet("background"))
    }
}
