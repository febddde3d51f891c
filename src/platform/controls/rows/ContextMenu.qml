import QtQuick
import QtQuick.Templates as T
import Kovamo.Desktop

/*! A small menu at the place it was asked for. */
T.Menu {
    id: menu

    // Above an on-screen keyboard.
    bottomMargin: margins + Math.max(0, InputMethod.visible ? (parent?.Window.height ?? 0) - InputMethod.keyboardRectangle.y : 0)
    implicitHeight: contentItem.implicitHeight
    implicitWidth: 220
    margins: Metrics.step * 2
    modal: true

    background: Rectangle {
        border.color: SystemColors.separator
        border.width: Metrics.hairline
        color: SystemColors.cell
        radius: Metrics.cardRadius
    }
    contentItem: ListView {
        implicitHeight: contentHeight
        interactive: false
        model: menu.contentModel
    }
    enter: Transition {
        NumberAnimation {
            duration: Motion.duration(120)
            from: 0
            property: "opacity"
            to: 1
        }
    }
    exit: Transition {
        NumberAnimation {
            duration: Motion.duration(120)
            property: "opacity"
            to: 0
        }
    }

    T.Overlay.modal: Item {
    }
}
