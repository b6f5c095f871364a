import QtQuick
import TambleClient.Control 1.0

/*! What a dialog shows. */
RDialogFrameBase {
    RStyleSet.typeName: "RDialog"

    unit: RThemeValues.unit
    header: RDialogHeader {}
    footer: RDialogFooter {}

    RBoxShadow {}
}
