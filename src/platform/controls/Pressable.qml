import QtQuick
import Kovamo.Controls

/*! What every button shares: it can be pressed by finger, mouse, Space and Enter, and says so. */
Focusable {
    id: pressable

    property string text
    /*! What the button does, where its name alone does not tell. */
    property string description
    /*! Whether the keyboard comes here, also after a press. */
    property bool takesFocus: true
    readonly property alias pressed: tap.pressed
    /*! What shows that the keyboard is here. */
    readonly property alias ring: ring

    /*! The user pressed it and let it go on it. */
    signal clicked

    Accessible.description: description
    Accessible.name: text
    Accessible.role: Accessible.Button
    activeFocusOnTab: takesFocus
    implicitHeight: Metrics.rowHeight
    implicitWidth: Metrics.rowHeight
    opacity: pressed ? 0.35 : 1

    Behavior on opacity  {
        enabled: !pressable.pressed

        NumberAnimation {
            duration: Motion.duration(200)
        }
    }

    Accessible.onPressAction: pressable.clicked()
    onActivated: pressable.clicked()

    FocusRing {
        id: ring

        distance: -2
        visible: pressable.visualFocus
        z: 1
    }
    TapHandler {
        id: tap

        gesturePolicy: TapHandler.ReleaseWithinBounds

        onPressedChanged: if (pressed && pressable.takesFocus)
            pressable.forceActiveFocus(Qt.MouseFocusReason)
        onTapped: pressable.clicked()
    }
}
