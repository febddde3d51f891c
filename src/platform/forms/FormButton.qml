import QtQuick
import Kovamo.Controls
import Kovamo.Desktop

/*! A button that is a whole row of a form: "Save". */
Pressable {
    id: button

    readonly property bool isFirst: Positioner.isFirstItem
    readonly property bool isLast: Positioner.isLastItem

    implicitHeight: Math.max(Metrics.rowHeight, caption.implicitHeight + (caption.lineCount > 1 ? Metrics.step * 2 : 0))
    opacity: 1
    width: parent ? parent.width : implicitWidth

    RowHighlight {
        anchors.fill: parent
        roundedBottom: button.isLast
        roundedTop: button.isFirst
        visible: button.pressed
    }
    Divider {
        anchors.left: parent.left
        anchors.leftMargin: Metrics.padding
        anchors.right: parent.right
        visible: !button.isFirst
    }
    PlainText {
        id: caption

        Accessible.ignored: true
        anchors.fill: parent
        anchors.leftMargin: Metrics.padding
        anchors.rightMargin: Metrics.padding
        color: button.enabled ? SystemColors.accent : SystemColors.tertiaryLabel
        font: TextStyles.headline
        horizontalAlignment: Text.AlignHCenter
        maximumLineCount: 3
        text: button.text
        wrapMode: Text.Wrap
    }
}
