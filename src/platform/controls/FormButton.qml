import QtQuick
import Kovamo.Foundation

/*! A button that is a whole row of a form: "Save". */
Pressable {
    id: button

    readonly property bool isFirst: Positioner.isFirstItem
    readonly property bool isLast: Positioner.isLastItem

    leftPadding: Metrics.padding
    opacity: 1
    rightPadding: Metrics.padding
    width: parent ? parent.width : implicitWidth

    background: Item {
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
    }
    contentItem: PlainText {
        Accessible.ignored: true
        color: button.enabled ? SystemColors.accent : SystemColors.tertiaryLabel
        font: TextStyles.headline
        horizontalAlignment: Text.AlignHCenter
        text: button.text
        verticalAlignment: Text.AlignVCenter
    }

    FocusRing {
        visible: button.visualFocus
        distance: -2
    }
}
