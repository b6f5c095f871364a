"""Which chapter of the index a type stands in: by the folder of its file, the first chapter that names it."""

import re

FAMILIES = {
    "Window, theme and style": ["RApplicationWindow", "RTheme", "RStyleEngineSetup", "RStyleDebugMouseArea", "style"],
    "Bars and progress": ["RAppBar", "bars", "RProgressBar", "RLoadingAnimation"],
    "Buttons": ["RButton", "RInconsistentButton", "RInconsistentPopup"],
    "Tabs and menus": ["RTabButton", "RMenu", "RPopupMenu", "menus"],
    "Fields and choices": ["RText/R(Number)?Text(Field|Area|Input).qml", "RSpinBox", "RComboBox", "RCheckBox", "fields"],
    "Tables": ["RCell", "cells"],
    "Containers": ["RAccordion", "RScrollView", "RRepeater", "RRepeaterBase.h", "RDraggableItem.qml", "RListView",
                   "RViewContainer", "RPane", "RScreen", "accordion", "dragging", "scrolling", "lists", "views"],
    "Dialogs and flyouts": ["RDialog", "RFlyout", "dialogs", "flyouts"],
    "Texts and decoration": ["RText", "RLabel", "RSectionHeader", "RIcon", "RBoxShadow", "RSelectionRect", "RFocusRectangle.qml"],
    "Levels": ["RFader", "RMeter", "RAxis", "fader", "meter", "RAxis.h", "RAxisItem.h"],
    "Frequency response": ["RBodeplot", "bodeplot"],
    "Dynamics": ["RLimiter/RLimiter.qml", "RCompressor", "RGate", "RDucker", "RAGC", "RANC", "dynamics"],
    "Plots": ["RLimiter", "plot"],
    "Values and texts": ["tambleclient-common"],
    "Models": ["models"],
    "Pointer and screen": ["pointer", "screen"],
    "Workspace": ["RWorkspace", "RWorksheet", "workspace"],
}
INTERNAL = "Internals"
OTHERS = "Others"


def family_of(place, is_internal):
    if is_internal:
        return INTERNAL
    path = "/" + place.partition(":")[0]
    for family, folders in FAMILIES.items():
        if any(re.search(f"/{folder}(/|$)", path) for folder in folders):
            return family
    return OTHERS
