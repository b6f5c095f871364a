import TambleClient.Control 1.0

/*! A page, under the name of its file. */
RScreen2 {
    RStyleSet.typeName: "RScreen2"
}
