import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RHorizontalScrollView"

    /*! Ten buttons 100 wide in a view of 364, of which two arrows leave 300. */
    function view(more = ""): var {
        const made = make("RHorizontalScrollView { width: 364; height: 60; spacing: 0\n" + more + "\nRepeater { model: 10; RButton { width: 100; text: index } } }")
        waitForRendering(made)
        wait(0)
        return made
    }

    function seen(view: var): var {
        return [view.firstVisibleIndex, view.lastVisibleIndex]
    }

    function test_scrolls_data() {
        return [
            { tag: "at first", act: () => {}, seen: [0, 2] },
            { tag: "a page", act: view => view.scrollBy(1), seen: [3, 5] },
            { tag: "two pages at once", act: view => { view.scrollBy(1); view.scrollBy(1) }, seen: [6, 8] },
            { tag: "no further", act: view => view.scrollBy(1e9), seen: [7, 9] },
            { tag: "nor back", act: view => view.scrollBy(-3), seen: [0, 2] },
            { tag: "nonsense", act: view => view.scrollBy(NaN), seen: [0, 2] },
            { tag: "half an item", act: view => view.scrollBy(0.5), seen: [1, 4] },
            { tag: "half an item, snapped", more: "snapToItems: true", act: view => view.scrollBy(0.45), seen: [1, 3] },
            { tag: "wheel", act: view => mouseWheel(view, 100, 20, 0, -120 * 3), seen: [1, 4] },
            { tag: "arrow", act: view => mouseClick(view, 350, 20), seen: [1, 3] },
            { tag: "no arrow", more: "showArrows: false", act: view => mouseClick(view, 350, 20), seen: [0, 3] },
            { tag: "focus", act: view => view.contentItem.contentItem.children[0].children[8].forceActiveFocus(Qt.TabFocusReason), seen: [6, 8] },
            { tag: "item", act: view => view.ensureVisible(view.contentItem.contentItem.children[0].children[9]), seen: [7, 9] },
            { tag: "mirrored", more: "LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true", act: () => {}, seen: [0, 2] },
            { tag: "mirrored page", more: "LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true", act: view => view.scrollBy(1), seen: [3, 5] },
        ]
    }
    function test_scrolls(data) {
        const row = view(data.more)
        data.act(row)
        tryVerify(() => String(seen(row)) === String(data.seen), 1000, "seen " + data.seen)
        wait(200)
        compare(seen(row), data.seen)
    }

    function test_empty() {
        const row = make("RHorizontalScrollView { width: 200; height: 60 }")
        waitForRendering(row)
        row.scrollBy(1)
        row.ensureVisible(null)
        compare(seen(row), [-1, -1])
    }
}
