import QtQuick

/*! While enabled, swallows a tap anywhere in the window but inside one item. */
Item {
    id: catcher

    required property Item inside

    signal tapped

    height: parent ? parent.height : 0
    parent: inside.Window.contentItem
    visible: enabled
    width: parent ? parent.width : 0
    // The overlay lies above sheets and menus, so that a tap on those is seen too.
    z: 2000000

    containmentMask: QtObject {
        function contains(point: point): bool {
            return !catcher.inside.contains(catcher.mapToItem(catcher.inside, point));
        }
    }

    TapHandler {
        gesturePolicy: TapHandler.ReleaseWithinBounds

        onPressedChanged: if (pressed)
            catcher.tapped()
    }
}
