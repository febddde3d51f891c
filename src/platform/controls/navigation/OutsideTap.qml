import QtQuick
import QtQuick.Templates as T

/*! While enabled, swallows a tap anywhere in the window, or in the sheet, but inside one item. */
Item {
    id: catcher

    required property Item inside

    signal tapped

    /*! The sheet that an item is in; where it is in none, the outermost item of its window. */
    function outermost(item: Item): Item {
        const above = item.parent;
        return above === null || above === T.Overlay.overlay || above === inside.Window.contentItem ? item : outermost(above);
    }

    height: parent ? parent.height : 0
    // In front of a modal sheet, Qt would deliver no wheel to what is in it.
    parent: enabled ? outermost(inside) : inside
    visible: enabled
    width: parent ? parent.width : 0
    z: 1

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
