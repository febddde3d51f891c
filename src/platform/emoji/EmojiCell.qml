import QtQuick
import Kovamo.Controls
import Kovamo.Desktop

/*! One emoji to choose; nothing where a row is not full. */
Item {
    id: cell

    required property string emoji
    required property string name
    /*! Whether the keyboard stands here. */
    required property bool ringed

    signal picked

    Accessible.name: name
    Accessible.role: Accessible.Button
    visible: emoji !== ""

    Accessible.onPressAction: picked()

    Rectangle {
        anchors.fill: parent
        color: SystemColors.fill
        radius: Metrics.cardRadius
        visible: tap.pressed
    }
    EmojiText {
        anchors.centerIn: parent
        font: TextStyles.emoji
        text: cell.emoji
    }
    TapHandler {
        id: tap

        gesturePolicy: TapHandler.ReleaseWithinBounds

        onTapped: cell.picked()
    }
    FocusRing {
        distance: -1
        visible: cell.ringed
    }
}
