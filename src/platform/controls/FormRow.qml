import QtQuick
import QtQuick.Templates as T
import Kovamo.Foundation

/*! One row of a form's section: at least 44 high, a hairline above it unless it is the first. */
T.Control {
    id: row

    /*! True while the row is pressed, where it can be. */
    property bool highlighted: false
    property bool isFirst: Positioner.isFirstItem
    property bool isLast: Positioner.isLastItem

    bottomPadding: Metrics.step * 2
    implicitHeight: Math.max(Metrics.rowHeight, implicitContentHeight + topPadding + bottomPadding)
    leftPadding: Metrics.padding
    rightPadding: Metrics.padding
    topPadding: Metrics.step * 2
    width: parent ? parent.width : implicitWidth

    background: Item {
        RowHighlight {
            anchors.fill: parent
            roundedBottom: row.isLast
            roundedTop: row.isFirst
            visible: row.highlighted
        }
        Divider {
            anchors.left: parent.left
            anchors.leftMargin: Metrics.padding
            anchors.right: parent.right
            visible: !row.isFirst
        }
    }

    FocusRing {
        control: row
        distance: -2
    }
}
