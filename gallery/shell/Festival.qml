pragma Singleton
import QtQuick
import Gallery

/*! What the pages of the sample client have in common, and keep while others are shown. */
QtObject {
    id: root

    /*! Numbers of the devices that the page of devices shows in detail. */
    property var chosenDevices: [0]
    /*! Whether that page has the details in the place of the list where there is no room for both. */
    property bool showsDetails: false
    /*! Whether that page lists only devices with an alarm. */
    property bool alarmsOnly: false
    /*! Whether the audience is there, so that nothing on the plan may be moved and no preset recalled by accident. */
    property bool showRuns: false
    /*! The filters of the main mix, an `EqualizerStore`. A file that is used here cannot use this one, so the window
        makes it. */
    property var equalizer: null
    readonly property FirmwareUpdate firmware: FirmwareUpdate {}
    /*! Pages of the catalogue, as maps with title and source, and the place of the one that is shown. */
    property var cataloguePages: []
    property int cataloguePage: 0
    /*! What the style engine has reported, each report once. */
    property var reports: []

    readonly property list<string> themes: ["light", "dark", "contrast-light", "contrast-dark"]
    readonly property string nextTheme: root.themes[(root.themes.indexOf(theme.stylesheet) + 1) % root.themes.length]

    /*! The user wants another theme. */
    signal themeChosen(string word)
    /*! The page of devices is to be shown. */
    signal devicesAsked()
    /*! The devices with an alarm are to be shown, on the page of devices. */
    signal alarmsAsked()
    /*! A page of the catalogue is to be shown. */
    signal catalogueAsked(int page)

    /*! Shows a device in detail; nothing for −1. */
    function openDevice(device: int) {
        if (device < 0)
            return
        root.alarmsOnly = false
        root.chosenDevices = [device]
        root.showsDetails = true
        root.devicesAsked()
    }

    /*! Lists the devices with an alarm, or all when none has one, whatever the page of devices shows. */
    function openAlarms() {
        root.alarmsOnly = GalleryInstallation.allDevices.alarms > 0
        root.showsDetails = false
        root.alarmsAsked()
    }
}
