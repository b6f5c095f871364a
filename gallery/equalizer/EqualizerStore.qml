import QtQuick
import "EqualizerEdits.js" as Edits
import "LoudspeakerChannels.js" as LoudspeakerChannels

/*! The filters of both channels and what was done to them. The steps of one gesture, or of a button that is pressed
    again and again, are undone together. */
QtObject {
    id: root

    property int channel: 0
    property int selected: 0
    /*! A gesture lasts, however long nothing moves. */
    property bool held: false

    /*! A list of filters per channel. Every edit makes new lists, so that earlier ones can be kept. */
    property var channels: LoudspeakerChannels.channels()
    readonly property var bands: root.channels[root.channel]
    readonly property var band: root.bands[root.selected]

    /*! Steps that can be undone and redone, the nearest last: channel, selected, before and after. */
    property var done: []
    property var undone: []
    /*! The step that is still going on. */
    property var open: null
    readonly property bool canUndo: root.open !== null || root.done.length > 0
    readonly property bool canRedo: root.undone.length > 0

    readonly property Timer idle: Timer {
        interval: 600
        onTriggered: root.finish()
    }

    onHeldChanged: root.finish()
    onChannelChanged: root.finish()

    /*! Gives a filter new values; edits of one filter with the same `gesture` belong together. */
    function edit(index: int, gesture: string, values: var) {
        if (root.open && (root.open.selected !== index || root.open.gesture !== gesture))
            root.finish()
        const before = root.bands
        const band = Object.assign({}, before[index], values)
        if (Edits.same(band, before[index]))
            return
        if (!root.open)
            root.open = {
                channel: root.channel,
                selected: index,
                gesture: gesture,
                before: before
            }
        root.show(root.channel, Edits.replaced(before, index, band))
        if (!root.held)
            root.idle.restart()
    }

    /*! Ends the step that is going on. One that led back to where it began is none. */
    function finish() {
        root.idle.stop()
        const step = root.open
        root.open = null
        if (step)
            root.keep(step, root.channels[step.channel])
    }

    function keep(step: var, after: var) {
        if (Edits.same(step.before, after))
            return
        root.done = root.done.concat([Object.assign({}, step, {
                after: after
            })])
        root.undone = []
    }

    function show(channel: int, bands: var) {
        root.channels = Edits.replaced(root.channels, channel, bands)
    }

    function undo() {
        root.finish()
        const step = root.done[root.done.length - 1]
        if (!step)
            return
        root.done = root.done.slice(0, -1)
        root.undone = root.undone.concat([step])
        root.reveal(step, step.before)
    }

    function redo() {
        root.finish()
        const step = root.undone[root.undone.length - 1]
        if (!step)
            return
        root.undone = root.undone.slice(0, -1)
        root.done = root.done.concat([step])
        root.reveal(step, step.after)
    }

    function reveal(step: var, bands: var) {
        root.channel = step.channel
        root.selected = step.selected
        root.show(step.channel, bands)
    }

    /*! Back to the preset, in a step that can be undone. */
    function reset() {
        root.finish()
        const preset = LoudspeakerChannels.channels()[root.channel]
        root.keep({
            channel: root.channel,
            selected: root.selected,
            before: root.bands
        }, preset)
        root.show(root.channel, preset)
    }
}
