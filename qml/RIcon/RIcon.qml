import QtQuick
import TambleClient.Control 1.0

/*! Square pictogram of the icon set, in the colour that the style gives or a page or button sets. Screen readers see
    nothing of it; a page on which it stands alone gives it an Accessible.role and a name. */
RIconBase {
    unit: RThemeValues.unit
}
