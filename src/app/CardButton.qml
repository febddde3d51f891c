import QtQuick
import Kovamo.Controls
import Kovamo.Desktop

/*! A button of a card that asks something. */
Pressable {
    id: button

    implicitHeight: Math.max(Metrics.rowHeight, caption.implicitHeight + Metrics.padding)

    PlainText {
        id: caption

        Accessible.ignored: true
        anchors.centerIn: parent
        color: SystemColors.accent
        horizontalAlignment: Text.AlignHCenter
        maximumLineCount: 3
        text: button.text
        width: parent.width
        wrapMode: Text.Wrap
    }
}
