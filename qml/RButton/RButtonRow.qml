import QtQuick
import TambleClient.Control 1.0

/*! Buttons side by side. */
Row {
    spacing: RThemeValues.gap
}
