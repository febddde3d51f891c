import QtQuick
import QtQuick.Templates as T
import Kovamo.Desktop

/*! A small menu at the place it was asked for. */
T.Menu {
    id: menu

    /*! The width of the line that needs most. */
    function widest(): real {
        let width = 0;
        for (let i = 0; i < count; ++i)
            width = Math.max(width, itemAt(i).implicitWidth);
        return width;
    }

    // Above an on-screen keyboard.
    bottomMargin: margins + Math.max(0, InputMethod.visible ? (parent?.Window.height ?? 0) - InputMethod.keyboardRectangle.y : 0)
    implicitHeight: contentItem.implicitHeight
    // The margins keep it from being wider than the window.
    implicitWidth: widest()
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
    // Otherwise it would offer again, to Enter, what was chosen last.
    onAboutToShow: currentIndex = -1

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
