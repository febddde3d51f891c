import QtQuick
import QtQuick.Templates as T
import Kovamo.Controls
import Kovamo.Desktop

/*! A line of a menu: its text and a symbol, red where it destroys, pale where it can do nothing. */
T.MenuItem {
    id: item

    property string symbol
    property bool destructive: false
    readonly property color tint: !enabled ? SystemColors.tertiaryLabel : destructive ? SystemColors.red : SystemColors.label

    implicitHeight: Math.max(Metrics.rowHeight, caption.implicitHeight + Metrics.step * 4)
    implicitWidth: Math.max(220, leftPadding + Math.ceil(caption.implicitWidth) + image.width + rightPadding)
    leftPadding: Metrics.padding
    rightPadding: Metrics.padding

    // Otherwise Qt leads the arrow keys to it.
    activeFocusOnTab: enabled

    Accessible.onPressAction: triggered()

    background: RowHighlight {
        roundedBottom: true
        roundedTop: true
        visible: item.highlighted || item.pressed
    }
    PlainText {
        id: caption

        Accessible.ignored: true
        anchors.left: parent.left
        anchors.leftMargin: item.leftPadding
        anchors.right: image.left
        anchors.verticalCenter: parent.verticalCenter
        color: item.tint
        fontSizeMode: Text.HorizontalFit
        text: item.text
    }
    SystemImage {
        id: image

        anchors.right: parent.right
        anchors.rightMargin: item.rightPadding
        anchors.verticalCenter: parent.verticalCenter
        color: item.tint
        height: 20
        name: item.symbol
        width: name === "" ? 0 : 20
    }
}
