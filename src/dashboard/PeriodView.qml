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

    Component.onCompleted: isComplete = true

    Banner {
        id: banner

        balance: period.content.banner
        width: period.width
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
        anchors.top: divider.bottom
        model: period.isComplete ? period.content.filteredList : null
        width: period.width

        delegate: FilteredListRow {
            width: list.width
        }
        header: TransactionChart {
            chart: period.content.chart
            width: list.width

            // A header that grows would stay above the visible part of the list.
            onHeightChanged: list.positionViewAtBeginning()
        }
    }
}
