import QtQuick

/*! Hears clicks of the right button. A TapHandler that accepts this button alone hears every tap of a
    finger, too, and in Qt 6.4 on Wayland every click. */
TapHandler {
    id: handler

    /*! At a point of the item that it stands in. */
    signal clicked(real x, real y)

    acceptedButtons: Qt.RightButton

    onTapped: (eventPoint, button) => {
        if (button === Qt.RightButton)
            handler.clicked(eventPoint.position.x, eventPoint.position.y);
    }
}
