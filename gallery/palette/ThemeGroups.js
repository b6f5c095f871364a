.pragma library

// The rule groups of the built-in sheets and the keys that a control of each reads without a state or a class.

const groups = [
    { name: "RAccordion", keys: ["background"] },
    { name: "RAccordionItem", keys: ["background", "foreground", "foreground-dragHandle"] },
    { name: "RAccordionSectionHeader", keys: ["background", "foreground"] },
    { name: "RAppBar", keys: ["background"] },
    { name: "RAppBarButton", keys: ["background", "foreground", "border", "border-visible"] },
    { name: "RAppBarNavButton", keys: ["background", "foreground", "line", "line-visible", "border"] },
    { name: "RAppBarStateButton", keys: [
        "border", "background", "background-flashing", "foreground", "line", "line-visible"
    ] },
    { name: "RAppBarSubNavButton", keys: [
        "background", "foreground", "line", "line-visible", "border", "border-visible"
    ] },
    { name: "RAppBarSubNavRow", keys: ["background"] },
    { name: "RAxis", keys: ["foreground", "tick"] },
    { name: "RBodeplotAxis", keys: ["foreground"] },
    { name: "RBodeplotCurve", keys: [
        "aggregated-curve", "aggregated-area", "individual-curve", "bypass-curve", "selected-curve"
    ] },
    { name: "RBodeplotFilterPoint", keys: ["background", "background-selected", "background-error"] },
    { name: "RBodeplotGrid", keys: ["background", "line-vertical", "line-horizontal", "line-xaxis"] },
    { name: "RButton", keys: [
        "background", "foreground", "label", "border", "line", "line-visible", "border-visible"
    ] },
    { name: "RButtonSwitch", keys: ["background", "handlebar", "handle", "border"] },
    { name: "RCheckBox", keys: ["foreground", "background", "border"] },
    { name: "RComboBox", keys: [
        "background", "foreground", "border", "line", "border-color-focus", "item-color-current",
        "item-color-hover", "foreground-item", "foreground-item-hover", "foreground-item-selected",
        "background-item", "background-item-hover", "background-item-selected", "popup-color",
        "popup-border-color", "indicator-background", "indicator-background-hover"
    ] },
    { name: "RDialog", keys: ["background", "border", "foreground"] },
    { name: "RFader", keys: [
        "background", "foreground", "index-below", "index-above", "handle", "handle-hover", "handle-border",
        "handle-border-focus", "handle-line", "handle-line-hover", "tick", "extraTick", "handle-inconsistent",
        "track", "track-indicator"
    ] },
    { name: "RFlyoutToolbar", keys: ["background", "border", "shadow"] },
    { name: "RFlyoutToolbarItem", keys: ["background", "foreground"] },
    { name: "RFlyoutWindow", keys: ["background", "border", "foreground"] },
    { name: "RFocusRectangle", keys: ["border"] },
    { name: "RIcon", keys: ["foreground"] },
    { name: "RLabel", keys: ["foreground", "line-color", "line"] },
    { name: "RLimiterCurve", keys: ["curve", "bypass-curve"] },
    { name: "RMenu", keys: [
        "foreground-item", "foreground-item-hover", "foreground-item-selected", "background-item",
        "background-item-hover", "background-item-selected", "background"
    ] },
    { name: "RMeter", keys: [
        "background", "background-green", "background-yellow", "background-red", "clipIndicator-color",
        "indicator-color"
    ] },
    { name: "RPane", keys: ["background", "border", "foreground"] },
    { name: "RPopupMenu", keys: ["popup-border-color"] },
    { name: "RScreen2", keys: ["background"] },
    { name: "RSectionHeader", keys: ["foreground", "line"] },
    { name: "RSelectionRect", keys: ["background", "border"] },
    { name: "RSpinBox", keys: [
        "background", "foreground", "line", "border", "selection", "foreground-selection", "confirmIndicator",
        "inconsistent-flag"
    ] },
    { name: "RTabButton", keys: [
        "background", "foreground", "border", "border-focus", "line", "line-visible", "line-at-top"
    ] },
    { name: "RText", keys: ["foreground"] },
    { name: "RTextArea", keys: [
        "background", "foreground", "foreground-invalid", "line", "border", "selection", "foreground-selection",
        "confirmIndicator", "inconsistent-flag"
    ] },
    { name: "RTextField", keys: [
        "background", "foreground", "foreground-invalid", "line", "border", "selection", "foreground-selection",
        "confirmIndicator", "inconsistent-flag", "line-unconfirmed", "line-invalid"
    ] },
    { name: "RTextInput", keys: ["foreground", "selection", "foreground-invalid"] },
    { name: "RWorksheet", keys: ["background"] },
    { name: "RWorkspace", keys: ["background"] },
    { name: "RWorkspaceItem", keys: ["background", "border"] },
    { name: "RWorkspaceItemValueBar", keys: ["background", "background-bar", "background-delimiter"] }
]
