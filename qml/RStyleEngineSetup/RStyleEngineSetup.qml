import QtQuick
import TambleClient.Control 1.0

/*! The style engine of an application, with the report of missing keys. The application sets the sources of `engine`. */
Item {
    /*! The style engine, whose sources the application sets. */
    property alias engine: styleEngine
    /*! Has keys reported that controls ask for in vain. */
    property alias checker: styleChecker

    RStyleEngine {
        id: styleEngine
    }
    RStyleChecker {
        id: styleChecker
    }
}
