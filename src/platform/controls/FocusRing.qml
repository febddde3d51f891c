import QtQuick
import QtQuick.Templates as T
import Kovamo.Foundation

/*! The ring around the control that the keyboard talks to; nothing for finger and mouse. */
Rectangle {
    required property T.Control control
    /*! How far the ring stands off the control's edge; negative inside it. */
    property real distance: 2

    anchors.fill: parent
    anchors.margins: -distance
    border.color: SystemColors.accent
    border.width: 2
    color: "transparent"
    radius: Metrics.cardRadius
    visible: control.visualFocus
}
