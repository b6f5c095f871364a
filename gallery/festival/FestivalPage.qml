import QtQuick
import TambleClient.Control 1.0

/*! A page of the sample client. */
RScreen {
    /*! Whether the page shows the signal, which plays while such a page is seen. */
    property bool listening: false

    /*! Height in which the whole page is seen without scrolling; 0 where it fits itself in. */
    property real wholePageHeight: 0

    padding: theme.dp(16)
}
