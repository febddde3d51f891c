import QtQuick
import QtQuick.Templates as T
import Kovamo.Foundation

/*! One row of a form's section: at least 44 high, a hairline above it unless it is the first. A
    content item fills it; other items stand in it as they like, in the height that it is told. */
T.Control {
    id: row

    /*! True while the row is pressed, where it can be. */
    property bool highlighted: false
    /*! The height that the row's items need. */
    property real contentHeight: 0
    default property alias content: slot.data
    property bool isFirst: Positioner.isFirstItem
    property bool isLast: Positioner.isLastItem

    bottomPadding: Metrics.step * 2
    implicitHeight: Math.max(Metrics.rowHeight, Math.max(contentHeight, implicitContentHeight) + topPadding + bottomPadding)
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

    Item {
        id: slot

        height: row.availableHeight
        width: row.availableWidth
        x: row.leftPadding
        y: row.topPadding
    }
    FocusRing {
        control: row
        distance: -2
    }
}
