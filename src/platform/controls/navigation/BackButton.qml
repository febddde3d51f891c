import QtQuick
import Kovamo.Controls
import Kovamo.Desktop

/*! Goes back one page: a chevron that points against the reading direction, and a word. */
Pressable {
    id: button

    /*! The room that the word may take; where it is too small, the chevron stands alone. */
    property real room: Infinity

    implicitWidth: label.visible ? chevron.width + label.implicitWidth + Metrics.step * 3 : Metrics.rowHeight
    text: qsTr("Back")

    SystemImage {
        id: chevron

        anchors.left: parent.left
        anchors.leftMargin: Metrics.step
        anchors.verticalCenter: parent.verticalCenter
        color: SystemColors.accent
        height: Metrics.symbolSize
        width: Metrics.symbolSize
        name: button.LayoutMirroring.enabled ? "chevron.right" : "chevron.left"
    }
    PlainText {
        id: label

        Accessible.ignored: true
        anchors.left: chevron.right
        anchors.verticalCenter: parent.verticalCenter
        color: SystemColors.accent
        text: button.text
        visible: chevron.width + Metrics.step * 3 + implicitWidth <= button.room
    }
}
