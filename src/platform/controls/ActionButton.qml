import QtQuick
import Kovamo.Controls
import Kovamo.Desktop

/*! The one thing to do on an empty screen: a symbol and a text on a soft capsule. */
Pressable {
    id: button

    property string symbol
    readonly property real side: Metrics.padding + Metrics.step
    readonly property real beside: image.width + Metrics.step * 2 + 2 * side
    readonly property real widest: parent ? parent.width - 2 * Metrics.padding : Infinity

    implicitHeight: Math.max(50, caption.implicitHeight + Metrics.padding * 2)
    implicitWidth: beside + caption.implicitWidth
    ring.distance: 2
    ring.radius: ring.height / 2
    width: Math.min(implicitWidth, widest)

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
        anchors.verticalCenter: parent.verticalCenter
        color: SystemColors.accent
        font: TextStyles.headline
        fontSizeMode: Text.HorizontalFit
        height: image.height
        text: button.text
        // A text with a width is laid out several times, and its emoji decoded each time.
        width: implicitWidth > button.widest - button.beside ? button.widest - button.beside : undefined
    }
}
