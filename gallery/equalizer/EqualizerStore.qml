import QtQuick
import Gallery
import "EqualizerEdits.js" as Edits
import "LoudspeakerChannels.js" as LoudspeakerChannels

/*! The filters of both channels; what is done to them is kept in a history. */
QtObject {
    id: root

    required property EditHistory history
    /*! What the channels are called. */
    property var names: [qsTr("Ch 1"), qsTr("Ch 2")]
    property int channel: 0
    property int selected: 0

    /*! A list of filters per channel. Every edit makes new lists, so that earlier ones can be kept. */
    property var channels: LoudspeakerChannels.channels()
    readonly property var bands: root.channels[root.channel]
    readonly property var band: root.bands[root.selected]

    onChannelChanged: root.history.finish()

    /*! Gives a filter new values; edits of one filter with the same `gesture` belong together. */
    function edit(index: int, gesture: string, values: var) {
        const band = Object.assign({}, root.bands[index], values)
        if (!Edits.same(band, root.bands[index]))
            root.take(index, Edits.replaced(root.bands, index, band), qsTr("%1: filter %2").arg(root.names[root.channel]).arg(band.label), gesture + index)
    }

    /*! Back to the preset, in a step that can be undone. */
    function reset() {
        root.history.finish()
        root.take(root.selected, LoudspeakerChannels.channels()[root.channel], qsTr("Preset of the filters"), "preset")
    }

    function take(selected: int, bands: var, text: string, gesture: string) {
        const step = bands => ({ channel: root.channel, selected: selected, bands: bands })
        root.history.keep(root, step(root.bands), step(bands), text, gesture + root.channel)
    }

    function reveal(step: var) {
        root.channel = step.channel
        root.selected = step.selected
        root.channels = Edits.replaced(root.channels, step.channel, step.bands)
    }
}
