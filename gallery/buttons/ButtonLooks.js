.pragma library

// The classes and the combinations of states that the sheets know for buttons.

const classes = ["", "red", "green", "ghost", "crossPoint"]

const looks = [
    { title: "plain", states: [] },
    { title: "hovered", states: ["hovered"] },
    { title: "pressed", states: ["pressed"] },
    { title: "focus", states: ["focus"] },
    { title: "selected", states: ["selected"] },
    { title: "selected pressed", states: ["selected", "pressed"] },
    { title: "inconsistent", states: ["inconsistent"] },
    { title: "inconsistent pressed", states: ["inconsistent", "pressed"] },
    { title: "disabled", states: ["disabled"] },
    { title: "disabled inconsistent", states: ["disabled", "inconsistent"] },
    { title: "active", states: ["active"] }
]
