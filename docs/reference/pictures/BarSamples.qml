import QtQuick
import TambleClient.Control 1.0

/*! An app bar and its buttons, progress, and titles of groups. */
Flow {
    Sample {
        name: "RAppBar"
        RAppBar {
            width: theme.dp(640)
            title: "Harbour Arena"
            leading: RAppBarButton { label: "Menu"; iconKey: "menu"; badge: "7" }
            trailing: RAppBarStateButton { RStyleSet.name: "green"; text: "ONLINE"; selected: true }
            subNavigation: [
                RAppBarSubNavButton { text: "Inputs"; selected: true },
                RAppBarSubNavButton { text: "Outputs" }
            ]

            RAppBarNavButton { text: "Overview"; iconKey: "home" }
            RAppBarNavButton { text: "Mixer"; iconKey: "mixer"; selected: true }
        }
    }
    Sample {
        name: "RAppBarButton"
        RAppBarButton { label: "Menu"; iconKey: "menu"; badge: "7" }
        RAppBarButton { label: "Undo"; text: "Undo"; iconKey: "undo" }
    }
    Sample {
        name: "RAppBarNavButton"
        RAppBarNavButton { text: "Mixer"; iconKey: "mixer"; selected: true }
        RAppBarNavButton { text: "Matrix"; badge: "3" }
        RAppBarNavButton { text: "Presets"; iconKey: "preset"; iconOnly: true }
    }
    Sample {
        name: "RAppBarSubNavButton"
        RAppBarSubNavButton { text: "Inputs"; selected: true }
        RAppBarSubNavButton { text: "Outputs"; iconKey: "line-output" }
    }
    Sample {
        name: "RAppBarStateButton"
        RAppBarStateButton { RStyleSet.name: "green"; text: "ONLINE"; subText: "12 of 12"; selected: true }
        RAppBarStateButton { RStyleSet.name: "red"; text: "FAULT"; iconKey: "warning" }
        RAppBarStateButton { text: "MUTE ALL"; consistent: false }
    }
    Sample {
        name: "RProgressBar"
        Column {
            spacing: theme.dp(8)
            RProgressBar { value: 0.4 }
            RProgressBar { value: 0.6; text: "Firmware, %p %" }
            RProgressBar { value: 0.6; text: "No answer"; failed: true }
        }
    }
    Sample {
        name: "RSectionHeader"
        Column {
            spacing: theme.dp(8)
            RSectionHeader { width: theme.dp(200); text: "Inputs" }
            RSectionHeader { width: theme.dp(200); text: "Outputs"; lineBelow: true }
        }
    }
}
