import QtQuick
import Kovamo.Controls
import Kovamo.Dashboard

// ListView creates the header, which pragma ComponentBehavior: Bound does not allow in Qt 6.4.
// qmllint disable unqualified

/*! What is shown of a time frame that something falls into: balance, chart and list. */
Item {
    id: period

    required property ContentState content
    /*! Rows are made once all above them has its height. */
    property bool isComplete: false

    /*! Whether the balance and the chart leave no room for a few rows: then the balance scrolls away
        with them. */
    readonly property bool isShort: height < topHeight + (list.headerItem?.height ?? 0) + 2 * Metrics.rowHeight
    /*! The height of the balance and of what parts it from the list. */
    readonly property real topHeight: banner.height + divider.height

    // A balance that scrolls away, or is higher than the room, is not to be seen behind the bars.
    clip: isShort

    Component.onCompleted: isComplete = true

    Banner {
        id: banner

        balance: period.content.banner
        width: period.width
        y: period.isShort ? list.originY - list.topMargin - list.contentY : 0
    }
    Divider {
        id: divider

        anchors.top: banner.bottom
        width: period.width
    }
    RowList {
        id: list

        Accessible.name: qsTr("Transactions of the time frame")
        anchors.bottom: parent.bottom
        anchors.top: period.isShort ? parent.top : divider.bottom
        model: period.isComplete ? period.content.filteredList : null
        topMargin: period.isShort ? period.topHeight : 0
        width: period.width

        delegate: FilteredListRow {
            content: period.content
            width: list.width
        }
        header: TransactionChart {
            chart: period.content.chart
            hidden: list.contentY - y
            width: list.width

            // A header that grows would stay above the visible part of the list.
            onHeightChanged: list.showTop()
        }

        onTopMarginChanged: showTop()
    }
}
