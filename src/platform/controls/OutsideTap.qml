import QtQuick

/*! While enabled, swallows the next press anywhere in the window but inside one item. */
MouseArea {
    id: catcher

    required property Item inside

    signal tapped

    // Above the window's sheets and menus.
    height: parent ? parent.height : 0
    parent: inside.Window.contentItem
    visible: enabled
    width: parent ? parent.width : 0
    z: 2000000

    onPressed: mouse => {
        mouse.accepted = !inside.contains(mapToItem(inside, mouse.x, mouse.y));
        if (mouse.accepted)
            catcher.tapped();
    }
}
