import QtQuick
import TambleClient.Control 1.0

/*! Surface within a pane: a smaller header, and no border. */
RPane {
    nested: true
    borderVisible: false
}
