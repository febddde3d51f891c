import QtQuick
import Kovamo.Desktop

/*! The ring around what the keyboard talks to. */
Rectangle {
    /*! How far the ring stands off the edge of what it is around; negative inside it. */
    property real distance: 2

    anchors.fill: parent
    anchors.margins: -distance
    border.color: SystemColors.accent
    border.width: 2
    color: "transparent"
    radius: Metrics.cardRadius
}
