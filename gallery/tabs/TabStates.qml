import QtQuick
import Gallery

/*! A kind of tab in all the states and both classes that the sheets know for tabs. */
StateMatrix {
    classes: ["", "filled"]
    looks: [
        { title: "plain", states: [] },
        { title: "hovered", states: ["hovered"] },
        { title: "focus", states: ["focus"] },
        { title: "selected", states: ["selected"] },
        { title: "selected focus", states: ["selected", "focus"] },
        { title: "inconsistent", states: ["inconsistent"] },
        { title: "disabled", states: ["disabled"] }
    ]
}
