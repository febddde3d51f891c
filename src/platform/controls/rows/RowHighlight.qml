import QtQuick
import Kovamo.Desktop

/*! The look of a pressed row, rounded where its card is. */
Rectangle {
    id: highlight

    property bool roundedTop: false
    property bool roundedBottom: false

    color: Qt.tint(SystemColors.cell, SystemColors.fill)
    radius: roundedTop || roundedBottom ? Metrics.cardRadius : 0

    Rectangle {
        color: highlight.color
        height: highlight.radius
        visible: !highlight.roundedTop
        width: parent.width
    }
    Rectangle {
        anchors.bottom: parent.bottom
        color: highlight.color
        height: highlight.radius
        visible: !highlight.roundedBottom
        width: parent.width
    }
}
