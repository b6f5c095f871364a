import QtQuick
import TambleClient.Control 1.0

/*! Surface of a page, with a header where it has a title. */
RPaneBase {
    id: root

    RStyleSet.typeName: "RPane"

    implicitWidth: Math.max(root.headerWidth, root.contentWidth + root.leftPadding + root.rightPadding)
    implicitHeight: root.collapsed ? root.headerHeight : root.contentHeight + root.topPadding + root.bottomPadding
    unit: RThemeValues.unit
}
