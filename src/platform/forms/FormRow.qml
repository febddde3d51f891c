import QtQuick
import Kovamo.Controls

/*! One row of a form's section: at least 44 high, a hairline above it unless it is the first. Its
    items stand between its margins, in the height that it is told. */
Focusable {
    id: row

    /*! The height that the row's items need. */
    property real contentHeight: 0
    default property alias content: slot.data
    /*! What is to be in sight with the row. */
    property Item whole: row
    property bool isFirst: Positioner.isFirstItem

    implicitHeight: Math.max(Metrics.rowHeight, contentHeight + Metrics.step * 4)
    width: parent ? parent.width : implicitWidth

    Divider {
        anchors.left: parent.left
        anchors.leftMargin: Metrics.padding
        anchors.right: parent.right
        visible: !row.isFirst
    }
    Item {
        id: slot

        anchors.fill: parent
        anchors.leftMargin: Metrics.padding
        anchors.rightMargin: Metrics.padding
    }
    FocusRing {
        distance: -2
        visible: row.visualFocus
    }
}
