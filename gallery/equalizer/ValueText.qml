import QtQuick
import TambleClient.Control 1.0

/*! A number in a column of numbers. */
RText {
    RStyleSet.typeName: "RText"

    horizontalAlignment: Text.AlignRight
    elide: Text.ElideRight
}
