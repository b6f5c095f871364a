import QtQuick
import QtQuick.Templates as T
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RLabel"

    component Editor: FocusScope {
        property alias label: editor.label
        Accessible.role: Accessible.EditableText
        Accessible.name: editor.label
        width: 40
        height: 20
        TextInput {
            id: editor
            property string label
            anchors.fill: parent
            focus: true
        }
    }
    Component {
        id: formComponent
        Column {
            id: form
            property alias caption: caption
            property alias editor: editor
            property alias other: other
            property bool joined: true
            RLabel {
                id: caption
                text: "&Gain <in> && out"
                buddy: form.joined ? editor : null
            }
            Editor {
                id: editor
            }
            Editor {
                id: other
                label: "own name"
            }
        }
    }

    function test_captions_data() {
        return [
            { tag: "marked key", text: "&Gain", html: "<u>G</u>ain", name: "Gain" },
            { tag: "inside a word", text: "A&uto", html: "A<u>u</u>to", name: "Auto" },
            { tag: "no markup", text: "<b>&x", html: "&lt;b&gt;<u>x</u>", name: "<b>x" },
            { tag: "only the first", text: "&a &b", html: "<u>a</u> b", name: "a b" },
            { tag: "ampersands", text: "R&&B & &Co&&", html: "R&amp;B &amp; <u>C</u>o&amp;", name: "R&B & Co&" },
            { tag: "required", text: "&Gain", required: true, html: "<u>G</u>ain *", name: "Gain" },
            { tag: "nothing marked", text: "A & B", html: "A & B", name: "A & B" },
        ]
    }
    function test_captions(row) {
        const form = createTemporaryObject(formComponent, root)
        form.caption.text = row.text
        form.caption.required = row.required ?? false
        compare(form.caption.text, row.text)
        compare(form.caption.plainCaption, row.name)
        const plain = Object.assign(make("Text {}"), { text: row.html, font: form.caption.font })
        plain.textFormat = row.html.includes("<u>") ? Text.StyledText : Text.PlainText
        compare(form.caption.implicitWidth, plain.implicitWidth)
        compare(form.editor.Accessible.name, row.name)
    }

    function test_withoutBuddyNothingIsMarked() {
        const form = createTemporaryObject(formComponent, root, { joined: false })
        compare(form.caption.plainCaption, "&Gain <in> && out")
        keyClick(Qt.Key_G, Qt.AltModifier)
        mouseClick(form.caption)
        verify(!form.editor.activeFocus)
    }

    function test_buddy() {
        const form = createTemporaryObject(formComponent, root)
        compare(form.editor.Accessible.name, "Gain <in> & out")
        form.caption.buddy = form.other
        compare(form.other.Accessible.name, "own name")

        mouseClick(form.caption)
        verify(form.other.activeFocus)
        form.caption.buddy = form.editor
        keyClick(Qt.Key_G, Qt.AltModifier)
        verify(form.editor.activeFocus)
        form.other.forceActiveFocus()
        form.caption.text = "&Level"
        keyClick(Qt.Key_G, Qt.AltModifier)
        verify(form.other.activeFocus, "the former key is free")
        form.caption.visible = false
        keyClick(Qt.Key_L, Qt.AltModifier)
        verify(form.other.activeFocus, "a hidden caption has no key")
    }

    function test_sameKeyTakesTurns() {
        const row = make("Column { id: row; property var fields: [first, second]\n" +
            "RLabel { text: '&Gain'; buddy: first } TextInput { id: first }\n" +
            "RLabel { text: '&Gateway'; buddy: second } TextInput { id: second } }")
        const met = [0, 1, 2].map(() => {
            keyClick(Qt.Key_G, Qt.AltModifier)
            return row.fields.findIndex(field => field.activeFocus)
        })
        compare(met, met[0] === 0 ? [0, 1, 0] : [1, 0, 1])
    }

    function test_ownTextIsTheName() {
        const row = make("Column { id: row; property Item buddy: button\n" +
            "RLabel { text: 'Channel 1'; buddy: row.buddy } RButton { id: button; text: 'Mute' } }")
        compare(row.buddy.Accessible.name, "")
        row.buddy = make("TextInput { text: 'typed' }")
        compare(row.buddy.Accessible.name, "Channel 1")
    }

    function test_lineColours_data() {
        return [
            { tag: "dark", line: "#3c3c3c" },
            { tag: "light", line: "#a0a0a0" },
            { tag: "contrast-dark", line: "#b4b4b4" }
        ]
    }
    function test_lineColours(row) {
        root.sheet = row.tag
        const label = make("RLabel { text: '12345678901234567890'; lineVisible: true }")
        compare(label.ssLineColor, row.line)
        compare(grabImage(label).pixel(2, label.height - 1), row.line)
        label.ssColor = "#ff0000"
        compare(label.color, "#ff0000")
    }

    function test_elidedTextShowsInAToolTip() {
        const label = make("RLabel { text: '12345678901234567890'; y: 50 }")
        mouseMove(label, 5, 5)
        wait(0)
        label.width = 40
        verify(label.truncated)
        mouseMove(root, 300, 250)
        mouseMove(label, 6, 6)
        const overlay = label.T.Overlay.overlay
        tryVerify(() => overlay.visible && overlay.children.length > 0, 2000)
        const height = overlay.children[0].height
        mouseMove(root, 300, 250)
        tryVerify(() => !overlay.visible)
        label.text = "a long caption ".repeat(10)
        mouseMove(label, 6, 6)
        tryVerify(() => overlay.visible && overlay.children[0].height > height, 2000, "in several lines")
        compare(overlay.children[0].width, 320)
        mouseMove(root, 300, 250)
        tryVerify(() => !overlay.visible)
        label.text = "a".repeat(20000)
        mouseMove(label, 6, 6)
        tryVerify(() => overlay.visible, 2000)
        compare(longestText(overlay), 1001, "not more than can be read")
        mouseMove(root, 300, 250)
        tryVerify(() => !overlay.visible)
    }
    function longestText(item: Item): int {
        let longest = item instanceof Text ? item.text.length : 0
        for (let i = 0; i < item.children.length; ++i)
            longest = Math.max(longest, longestText(item.children[i]))
        return longest
    }
}
