import QtQuick
import Kovamo.Controls
import Kovamo.Desktop

/*! Empties the field it stands in, which keeps the focus. */
Pressable {
    takesFocus: false
    text: qsTr("Clear")

    SystemImage {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        color: SystemColors.tertiaryLabel
        height: 18
        name: "xmark.circle.fill"
        width: 18
    }
}
