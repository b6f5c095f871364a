import TambleClient.Control 1.0

/*! Repeater that gives what it makes as a list, such as the filters of an RBodeplotCurve. */
RRepeaterBase {}
