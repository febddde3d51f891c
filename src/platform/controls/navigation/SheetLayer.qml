import QtQuick
import Kovamo.Desktop

/*! What a sheet draws over the window: the dimmed screen and the card that slides over it. */
FocusScope {
    id: layer

    required property bool presented
    required property real barHeight
    required property color color
    default property alias content: slot.data
    /*! How far the card is open: 0 … 1. */
    property real position: 0
    readonly property bool wide: width >= 700
    readonly property bool floating: wide && height >= 600
    /*! The bottom of the open card, and the top of the on-screen keyboard. */
    readonly property real cardBottom: height - travel + card.height
    property real keyboardTop: InputMethod.visible && InputMethod.keyboardRectangle.height > 0 ? InputMethod.keyboardRectangle.y : Infinity
    readonly property real travel: floating ? (height + card.height) / 2 : card.height

    signal dismissed
    signal closed

    /*! Moves the card to where the owner's flag wants it. */
    function settle() {
        movement.to = layer.presented ? 1 : 0;
        movement.restart();
    }

    /*! Lets the card go at `velocity` points a second downwards. */
    function release(velocity: real) {
        const presented = layer.presented;
        if (layer.position - velocity * 0.2 / layer.travel < 0.6)
            layer.dismissed();
        if (layer.presented === presented)
            layer.settle();
    }

    onPresentedChanged: settle()

    Keys.onBackPressed: layer.dismissed()
    Keys.onEscapePressed: layer.dismissed()

    NumberAnimation {
        id: movement

        duration: Motion.duration(420)
        easing.type: Easing.OutQuint
        property: "position"
        target: layer

        onFinished: if (to === 0)
            layer.closed()
    }
    Rectangle {
        Accessible.name: qsTr("Dismiss")
        Accessible.role: Accessible.Button
        anchors.fill: parent
        color: SystemColors.dimming
        opacity: layer.position

        Accessible.onPressAction: layer.dismissed()

        TapHandler {
            gesturePolicy: TapHandler.ReleaseWithinBounds

            // Ignores the second tap of a double tap on the button that opened the sheet.
            onTapped: if (layer.position === 1)
                layer.dismissed()
        }
    }
    Item {
        id: card

        height: layer.floating ? Math.min(layer.height - 80, 860) : layer.height - (layer.height < 500 ? 16 : 44)
        width: layer.wide ? Math.min(layer.width - 80, Metrics.readableWidth) : layer.width
        x: (layer.width - width) / 2
        y: layer.height - layer.travel * layer.position

        Rectangle {
            anchors.bottomMargin: layer.floating ? 0 : -radius
            anchors.fill: parent
            anchors.leftMargin: layer.wide ? 0 : -border.width
            anchors.rightMargin: anchors.leftMargin
            border.color: SystemColors.separator
            border.width: SystemColors.dark ? Metrics.hairline : 0
            color: layer.color
            radius: Metrics.cardRadius
        }
        TapHandler {
            // Takes taps on the card, which would otherwise reach the area that dismisses.
            gesturePolicy: TapHandler.WithinBounds
            // Without this, it takes on Wayland the first tap on a menu that a button of the card opened.
            grabPermissions: PointerHandler.CanTakeOverFromHandlersOfDifferentType | PointerHandler.ApprovesTakeOverByAnything
        }
        Item {
            id: slot

            // The content ends above the on-screen keyboard.
            anchors.bottomMargin: Math.max(layer.floating ? Metrics.cardRadius : 0, layer.cardBottom - layer.keyboardTop)
            anchors.fill: parent
        }
        Item {
            height: layer.barHeight
            width: parent.width

            // If the finger rested before it was lifted, its last speed does not count as a throw.
            Timer {
                id: resting

                interval: 100
            }
            DragHandler {
                id: drag

                property real start: 1

                target: null
                xAxis.enabled: false

                onActiveChanged: {
                    movement.stop();
                    if (active)
                        start = layer.position;
                    else
                        layer.release(resting.running ? centroid.velocity.y : 0);
                }
                onActiveTranslationChanged: {
                    layer.position = Math.min(1, start - activeTranslation.y / layer.travel);
                    resting.restart();
                }
            }
        }
    }
}
