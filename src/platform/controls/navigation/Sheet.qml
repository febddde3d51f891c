import QtQuick
import QtQuick.Templates as T
import Kovamo.Desktop

/*! A modal sheet that its owner's flag opens and closes: it slides up from the bottom, dims what is
    behind and leaves a strip of it in sight. What it shows is made when it opens and goes when it
    has closed. It can be caught in every movement. */
Item {
    id: sheet

    /*! The owner's flag. The sheet never sets it. */
    property bool presented: false
    /*! What the sheet is for, for those who listen. */
    required property string title
    /*! What the sheet shows. */
    default property Component contentComponent
    property color color: SystemColors.groupedBackground
    /*! How far down from the card's top it can be dragged. */
    property real barHeight: Math.max(56, Metrics.rowHeight)
    /*! What the content is about: for another one it is made anew, should the sheet be called back. */
    property QtObject subject: null
    /*! The shown content, null while the sheet is closed. */
    readonly property alias contentItem: loader.item
    /*! How far the sheet is open: 0 … 1. */
    readonly property alias position: layer.position
    property Item focusedBefore: null
    readonly property Item overlay: T.Overlay.overlay

    /*! The user wants the sheet to go: the owner resets its flag. */
    signal dismissed
    /*! The sheet is gone from the screen. */
    signal closed

    function open() {
        if (!popup.visible)
            sheet.focusedBefore = sheet.Window.activeFocusItem;
        popup.open();
    }

    function close() {
        // If another sheet has opened meanwhile, the focus is there and stays there.
        const hasFocus = layer.activeFocus || !sheet.Window.active;
        popup.close();
        if (hasFocus && sheet.focusedBefore !== null)
            sheet.focusedBefore.forceActiveFocus(Qt.PopupFocusReason);
        sheet.closed();
    }

    function renew() {
        loader.sourceComponent = null;
        loader.sourceComponent = sheet.contentComponent;
    }

    onPresentedChanged: if (presented)
        open()
    onSubjectChanged: renew()

    Component.onCompleted: if (presented)
        open()

    T.Popup {
        id: popup

        closePolicy: T.Popup.NoAutoClose
        focus: true
        height: parent ? parent.height : 0
        // With several modal popups open, Qt delivers wheel events to none of them.
        modal: layer.activeFocus
        parent: sheet.overlay
        width: parent ? parent.width : 0

        SheetLayer {
            id: layer

            LayoutMirroring.childrenInherit: true
            anchors.fill: parent
            focus: true
            LayoutMirroring.enabled: sheet.LayoutMirroring.enabled
            barHeight: sheet.barHeight
            color: sheet.color
            presented: sheet.presented

            onClosed: sheet.close()
            onDismissed: sheet.dismissed()

            Loader {
                id: loader

                active: popup.visible
                anchors.fill: parent
                focus: true
                sourceComponent: sheet.contentComponent

                onLoaded: item.focus = true
            }
        }

        T.Overlay.modal: Item {
        }
    }
    Binding {
        property: "name"
        target: popup.contentItem.parent.Accessible
        value: sheet.title
    }
}
