import QtQuick
import Kovamo.Charts
import Kovamo.Desktop
import Kovamo.Views

/// A lens that stands above the place of a reading, with the reading's words over it; it keeps
/// inside of its parent's sides.
Item {
    id: magnifier

    required property magnifiedReading reading

    width: 88
    height: 116
    x: Math.max(0, Math.min(parent.width - width, magnifier.reading.position.x - width / 2))
    y: magnifier.reading.position.y - height - 12

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        width: words.implicitWidth + 16
        height: 24
        radius: 12
        color: SystemColors.label

        Text {
            id: words

            anchors.centerIn: parent
            text: magnifier.reading.text
            textFormat: Text.PlainText
            color: SystemColors.background
            font.pixelSize: 13
            font.weight: Font.DemiBold
        }
    }

    ViewItem {
        y: 28
        width: 88
        height: 88
        view: magnifier.reading.lens
    }
}
