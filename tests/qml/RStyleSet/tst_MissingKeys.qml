import QtQuick
import QtTest
import TambleClient.Control 1.0

/*! Under the sheets of the module none of its controls asks for a key in vain: a report that counts nothing but a
    page's own mistakes can be read. */
TestCase {
    id: root
    name: "MissingKeys"
    when: windowShown
    visible: true
    width: 400
    height: 400

    property string sheet: "dark"
    property var reports: []

    RThemeSelector {
        themeComponent: Component {
            RTheme {
                hoverEnabled: true
            }
        }
    }
    RStyleEngineSetup {
        id: setup
        engine.defaultStyleSheetSource: "qrc:/style/tamble." + root.sheet + ".style"
        engine.onException: (type, message) => root.reports.push(message)
    }
    // A page's mistake. Whatever is missed leads to a report of all that is missing, so this tells of keys, too, that
    // were missed by an item which then got another path.
    Item {
        id: mistake

        property color ssNone: mistake.RStyleSet.props.color("none")
    }

    readonly property var controls: [
        "RTextField { consistent: false; confirmed: false; errorText: 'x'; clearable: true; revealable: true; iconKey: 'key'; placeholderText: 'x' }",
        "RNumberTextField { value: 1; unit: 'dB' }",
        "RTextArea { consistent: false; confirmed: false; errorText: 'x' }",
        "RSpinBox { value: 1000; confirmed: false; prefix: 'x'; suffix: 'dB' }",
        "RAGC { gainMeterVisible: true; levelVisible: true }",
        "RANC { ambientMeterVisible: true; freezeGain: true }",
        "RAccordion { reorderable: true; RAccordionSectionHeader { title: 'x'; collapsible: true } RAccordionItem { title: 'x'; subtitle: 'x'; iconKey: 'mute'; expanded: true; RText { text: 'x' } } }",
        "RAccordionItem { title: 'x'; enabled: false }",
        "RAccordionSectionHeader { title: 'x'; collapsible: true; enabled: false }",
        "RAppBar { title: 'Arena'; RAppBarNavButton { text: 'Mixer' } subNavigation: RAppBarSubNavButton { text: 'In' } }",
        "RAppBarButton { label: 'Menu'; text: 'Menu'; iconKey: 'menu'; badge: '3' }",
        "RAppBarNavButton { text: 'Mixer'; iconKey: 'mixer'; badge: '3'; selected: true }",
        "RAppBarStateButton { text: 'ONLINE'; RStyleSet.name: 'red'; consistent: false; selected: true }",
        "RAppBarStateButton { text: 'ONLINE'; subText: '3'; iconKey: 'mixer'; flashing: true; pressTwice: true }",
        "RAppBarSubNavButton { text: 'In'; iconKey: 'mixer'; selected: true }",
        "RAxis { width: 40; height: 200 }",
        "RBodeplot { width: 300; height: 200; RBodeplotCurve { calculationItems: [RBodeplotEqFilter { freq: 1000 }] } }",
        "RBodeplot { width: 300; height: 200; RLimiterCurve {} RSimpleCurve { points: [Qt.point(100, 0), Qt.point(1000, 6)] } }",
        "RBoxShadow { width: 40; height: 40 }",
        "RButton { text: 'Mute' }",
        "RButton { text: 'Mute'; RStyleSet.name: 'red' }",
        "RButton { text: 'Mute'; RStyleSet.name: 'green'; selected: true }",
        "RButton { text: 'Mute'; RStyleSet.name: 'ghost' }",
        "RButton { text: 'Mute'; RStyleSet.name: 'crossPoint'; active: true; selected: true }",
        "RButton { text: 'Mute'; consistent: false; enabled: false }",
        "RButtonIcon { iconItem.key: 'mute' }",
        "RButtonIconLabel { text: 'Mute' }",
        "RButtonIconLabelH { text: 'Mute'; iconItem.key: 'mute' }",
        "RButtonIconLabelV { text: 'Mute'; iconItem.key: 'mute' }",
        "RButtonLabelText { text: 'Mute'; textSub: 'on' }",
        "RButtonSwitch { selectable: true }",
        "RButtonSwitch { consistent: false; enabled: false }",
        "RCheckBox { text: 'Mute' }",
        "RCheckBox { selected: true; consistent: false; confirmed: false }",
        "RComboBox { model: ['Pink', 'White'] }",
        "RComboBox { editable: true; consistent: false; confirmed: false; model: 3 }",
        "RCellButton { text: 'Mute'; iconKey: 'mute'; styleName: 'crossPoint'; active: true; selected: true }",
        "RCellComboBox { model: ['Microphone', 'Line']; consistent: false }",
        "RCellContainer { RCellLabel { text: 'Gain' } RCellText { row: 1; text: '0'; columnSpan: 2; selected: true } }",
        "RCellSpinBox { value: 3; current: true }",
        "RCellTabBar { model: ['In', 'Out'] }",
        "RCellTabButton { text: 'In' }",
        "RCellTextArea { value: 'Mute' }",
        "RCellTextField { value: 'Mute'; consistent: false }",
        "RCompressor { gainReductionVisible: true }",
        "RButton { RDialog { visible: true; title: 'Name'; iconKey: 'edit'; Component.onCompleted: standardButtons = 0x400; busy: true; RText { text: 'Mute' } } }",
        "RDragHandler {}",
        "RDraggableItem { RText { text: 'x' } }",
        "RDucker {}",
        "RFader { height: 200; trackIndicatorVisible: true }",
        "RFader { height: 200; handleText: 'AUX'; RStyleSet.name: 'green' }",
        "RFader { height: 200; consistent: false; RStyleSet.name: 'red' }",
        "RFlyoutToolbar { movable: true; RFlyoutToolbarItem { label: 'EQ'; text: 'EQ'; iconKey: 'eq'; selected: true; flyout: QtObject {} } }",
        "RFlyoutWindow { id: flyout; title: 'EQ'; iconKey: 'eq'; group: 'g'; resizable: true; RText { text: 'EQ' } Component.onCompleted: flyout.open() }",
        "RGate {}",
        "RHorizontalScrollView { width: 100; height: 40; Repeater { model: 9; RButton { text: 'x' } } }",
        "RIcon { key: 'mute' }",
        "RInconsistentButton { text: 'Mute'; consistent: false }",
        "RInconsistentButtonSwitch { consistent: false }",
        "RLabel { text: 'Mute'; lineVisible: true }",
        "RLabel { text: 'A caption that is too long'; width: 40 }",
        "RLimiter { limiterBypassed: true }",
        "RLoadingAnimation { text: 'Wait' }",
        "RLimiter { levelVisible: true }",
        "RListView { width: 200; model: ['Left', 'Right', 'Sub']; selectionMode: RListView.Multiple; selectedIndexes: [0] }",
        "RListView { placeholderText: 'No device' }",
        "RListView { model: 3; selectedIndexes: [0]; delegate: RText { text: index } }",
        "RButton { RMenu { visible: true; currentIndexSelected: 0; model: [{ text: 'Mute', checked: true }, { separator: true }, { text: 'More', items: ['Solo'] }] } }",
        "RButton { RPopupMenu { visible: true; model: Array(50).fill('Mute') } }",
        "RButton { RMenu { visible: true; currentIndexSelected: 0; model: [{ text: 'Mute', checked: true }, { separator: true }, { text: 'More', items: ['Solo'] }] } }",
        "RButton { RPopupMenu { visible: true; model: Array(50).fill('Mute') } }",
        "RMeter { faderIndicatorActive: true; clipIndicatorSupported: true }",
        "RMeter { split: true }",
        "RPane { RText { text: 'Mute' } }",
        "RPane { title: 'Mute'; iconKey: 'mute'; collapsible: true; RPaneSub { title: 'Mute'; collapsible: true } }",
        "RProgressBar { indeterminate: true }",
        "RProgressBar { text: '%p'; failed: true }",
        "RScreen { title: 'Mute' }",
        "RSectionHeader { text: 'Inputs' }",
        "RSelectionRect { active: true; end: Qt.point(20, 20) }",
        "RTabButton { text: 'Mute'; closable: true; modified: true; badge: '3' }",
        "RTabButton { text: 'Mute'; selected: true }",
        "RTabButton { text: 'Mute'; RStyleSet.name: 'filled'; consistent: false }",
        "RTabButtonIcon { label: 'Mute'; iconKey: 'mute'; modified: true }",
        "RTabButtonIconLabelH { text: 'Mute'; iconKey: 'mute' }",
        "RTabButtonIconLabelV { text: 'Mute'; iconKey: 'mute' }",
        "RText { text: 'Mute' }",
        "RViewContainer { width: 99; height: 99; views: [{ key: 'a', component: a }]; Component { id: a; RText { text: 'Mute' } } }",
        "RWorksheet { width: 300; height: 200; title: 'Stage'; modified: true; RWorkspace { id: work; RWorkspaceItem { title: 'Amp'; iconKey: 'mute'; statusIconKey: 'warning'; locked: true; valueBar: RWorkspaceItemValueBar { value: 9; delimiterValue: 5 } } Component.onCompleted: work.selection.select(work.items[0], 0) } }",
        "RWorkspace { width: 100; height: 100; RWorkspaceItem { title: 'Amp' } }",
        "RWorkspaceItem { width: 96; height: 64; title: 'Amp' }",
        "RWorkspaceItemValueBar { width: 96; height: 6; value: 9; delimiterValue: 5 }",
        "RWorkspaceZoomBar {}",
    ]

    /*! All items below `item` that can be dragged. */
    function handlesOf(item: var): var {
        let handles = item.dragging === undefined ? [] : [item]
        for (let i = 0; i < item.children.length; ++i)
            handles = handles.concat(handlesOf(item.children[i]))
        return handles
    }

    /*! The reports since the last call. */
    function missed(): var {
        grabImage(root)
        wait(0)
        grabImage(root)
        return root.reports.splice(0)
    }

    function touch(item: Item) {
        mouseMove(item, item.width / 2, item.height / 2)
        mousePress(item, item.width / 2, item.height / 2)
        wait(0)
        mouseMove(item, item.width / 2 + 8, item.height / 2 + 8)
        keyClick(Qt.Key_Tab)
        mouseRelease(item, item.width / 2 + 8, item.height / 2 + 8)
        item.enabled = false
        wait(0)
    }

    function test_missing_data() {
        return root.controls.map(control => ({ tag: control, body: control }))
    }
    function test_missing(data) {
        const sheets = ["light", "dark", "contrast-light", "contrast-dark"]
        for (const sheet of sheets) {
            root.sheet = sheet
            missed()
            const control = createTemporaryQmlObject("import QtQuick\nimport TambleClient.Control 1.0\n" + data.body, root)
            compare(missed(), [], sheet + ", made")
            for (const item of [...handlesOf(control), control])
                touch(item)
            compare(missed(), [], sheet + ", touched")
            root.sheet = sheet === "dark" ? "light" : "dark"
            compare(missed().filter(report => !report.includes("none")), [], "from " + sheet + " to " + root.sheet)
            control.destroy()
        }
    }
}
