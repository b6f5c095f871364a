import QtQuick
import TambleClient.Control 1.0

/*! Writes a picture of each sample in the four themes to the folder that the last argument names. */
RApplicationWindow {
    id: root

    readonly property string folder: Qt.application.arguments[Qt.application.arguments.length - 1]
    readonly property var words: ["dark", "light", "contrast-dark", "contrast-light"]
    /*! By the name of the sample, an item with what was grabbed in each theme. */
    property var contactSheets: ({})
    property int awaited: 0

    function samples(): list<var> {
        const found = []
        for (const sheet of Array.from(sheets.children))
            found.push(...Array.from(sheet.children).filter(item => item.shown !== undefined))
        return found
    }

    function fail(reason: string) {
        console.error(reason)
        Qt.exit(1)
    }

    function grab(item: Item, taken: var, next: var) {
        root.awaited += 1
        const begun = item.grabToImage(result => {
            taken(result)
            root.awaited -= 1
            if (root.awaited === 0)
                next()
        })
        if (!begun)
            root.fail("cannot grab " + item)
    }

    /*! One theme after the other: all windows of a process share their styles. */
    function takeTheme(index: int) {
        if (index === root.words.length) {
            root.writeAll()
            return
        }
        root.setTheme(root.words[index])
        for (const sample of root.samples()) {
            if (index === 0)
                root.contactSheets[sample.name] = contactSheet.createObject(sheets)
            // At once: the picture behind the address is gone with the result.
            const image = root.contactSheets[sample.name].children[index]
            root.grab(sample.shown, result => image.source = result.url, () => root.takeTheme(index + 1))
        }
    }

    function writeAll() {
        const names = Object.keys(root.contactSheets)
        for (const name of names) {
            const file = `${root.folder}/${name}.png`
            root.contactSheets[name].forceLayout()
            root.grab(root.contactSheets[name], result => {
                if (!result.saveToFile(file))
                    root.fail("cannot write " + file)
            }, () => {
                console.log(`${names.length} pictures in ${root.folder}`)
                Qt.quit()
            })
        }
    }

    visible: true
    flags: Qt.FramelessWindowHint

    Column {
        id: sheets
        width: root.width
        BarSamples { width: sheets.width }
        ButtonSamples { width: sheets.width }
        TextSamples { width: sheets.width }
        FieldSamples { width: sheets.width }
        TabSamples { width: sheets.width }
        CellSamples { width: sheets.width }
        LevelSamples { width: sheets.width }
        FrequencySamples { width: sheets.width }
        DynamicsSamples { width: sheets.width }
        PlotSamples { width: sheets.width }
    }

    Component {
        id: contactSheet
        Grid {
            columns: first.width > 300 ? 2 : 4
            Image {
                id: first
            }
            Image {}
            Image {}
            Image {}
        }
    }

    Timer {
        running: true
        interval: 200 // the window is on the screen, and popups have opened
        onTriggered: root.takeTheme(0)
    }
    Timer {
        running: true
        interval: 25000
        onTriggered: root.fail("no picture for 25 s")
    }
}
