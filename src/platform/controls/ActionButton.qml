import QtQuick
import Kovamo.Controls
import Kovamo.Desktop

/*! The one thing to do on an empty screen: a symbol and a text on a soft capsule. */
Pressable {
    id: button

    property string symbol
    readonly property real side: Metrics.padding + Metrics.step

    implicitHeight: Math.max(50, caption.implicitHeight + Metrics.padding * 2)
    implicitWidth: image.width + Metrics.step * 2 + caption.implicitWidth + 2 * side
    ring.distance: 2
    ring.radius: ring.height / 2
    width: Math.min(implicitWidth, parent ? parent.width - 2 * Metrics.padding : Infinity)

    Rectangle {
        anchors.fill: parent
        color: SystemColors.fill
        radius: height / 2
    }
    SystemImage {
        id: image

        anchors.left: parent.left
        anchors.leftMargin: button.side
        anchors.verticalCenter: parent.verticalCenter
        color: SystemColors.accent
        height: 18
        name: button.symbol
        width: name === "" ? 0 : 18
    }
    PlainText {
        id: caption

        Accessible.ignored: true
        anchors.left: image.right
        anchors.leftMargin: Metrics.step * 2
        anchors.right: parent.right
        anchors.rightMargin: button.side
        anchors.verticalCenter: parent.verticalCenter
        color: SystemColors.accent
        font: TextStyles.headline
        fontSizeMode: Text.HorizontalFit
        height: image.height
        text: button.text
        verticalAlignment: Text.AlignVCenter
    }
}
