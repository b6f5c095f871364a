import QtQuick
import TambleClient.Control 1.0

/*! The style engine of an application, with the report of missing keys. The application sets the sources of `engine`. */
Item {
    property alias engine: styleEngine
    property alias checker: styleChecker

    RStyleEngine {
        id: styleEngine
    }
    RStyleChecker {
        id: styleChecker
    }
}
