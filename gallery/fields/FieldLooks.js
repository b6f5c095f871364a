.pragma library

// The states that a field can be in: words forced upon its style, and values of its properties.

const looks = [
    { title: qsTr("plain") },
    { title: qsTr("hovered"), states: ["hovered"] },
    { title: qsTr("focused"), states: ["focus"] },
    { title: qsTr("mixed"), values: { consistent: false } },
    { title: qsTr("disabled"), values: { enabled: false } },
    { title: qsTr("read-only"), values: { readOnly: true } },
    { title: qsTr("invalid"), values: { errorText: qsTr("The address is in use") } },
    { title: qsTr("unconfirmed"), values: { confirmed: false } },
    { title: qsTr("mixed, unconfirmed"), values: { consistent: false, confirmed: false } },
    { title: qsTr("mixed, disabled"), values: { consistent: false, enabled: false } },
]
