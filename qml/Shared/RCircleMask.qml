import QtQuick

/*! The `containmentMask` of a pointer area that is a circle. */
QtObject {
    id: root

    required property Item area

    function contains(place: point): bool {
        return Math.hypot(place.x - root.area.width / 2, place.y - root.area.height / 2) <= root.area.width / 2
    }
}
