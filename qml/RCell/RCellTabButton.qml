import QtQuick
import TambleClient.Control 1.0

/*! Tab of a cell's tab bar; also alone in an RCell. */
RTabButtonIconLabelH {
    RStyleSet.name: "filled"
}
