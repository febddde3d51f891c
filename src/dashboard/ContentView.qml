import QtQuick
import Kovamo.Controls
import Kovamo.Dashboard
import Kovamo.Foundation

// The list makes its header where the toolkit refuses bound components.
// qmllint disable unqualified

/*! The main screen: balance, chart and list of the selected time frame. */
FocusScope {
    id: screen

    required property ContentState content
    required property list<string> digits
    readonly property real contentWidth: Math.min(width, 700)

    Component.onCompleted: content.appear()

    Rectangle {
        anchors.fill: parent
        color: SystemColors.background
    }
    Shortcut {
        sequence: "Ctrl+N"

        onActivated: screen.content.showAddTransaction = true
    }
    Shortcut {
        sequence: "Ctrl+L"

        onActivated: screen.content.showTransactions = true
    }
    NavigationBar {
        id: bar

        width: parent.width

        leading: BarButton {
            description: qsTr("Shows all transactions")
            symbol: "list.bullet"
            text: qsTr("Add Item")

            onClicked: screen.content.showTransactions = true
        }
        trailing: BarButton {
            description: qsTr("Records a new transaction")
            symbol: "plus"
            text: qsTr("Add Item")

            onClicked: screen.content.showAddTransaction = true
        }
    }
    Banner {
        id: banner

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: bar.bottom
        balance: screen.content.banner
        digits: screen.digits
        visible: screen.content.hasPeriod
        width: screen.contentWidth
    }
    Divider {
        id: divider

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: banner.bottom
        visible: screen.content.hasPeriod
        width: screen.contentWidth
    }
    ListView {
        id: list

        Accessible.name: qsTr("Transactions of the time frame")
        Accessible.role: Accessible.List
        anchors.bottom: picker.top
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: divider.bottom
        clip: true
        model: screen.content.filteredList
        reuseItems: true
        visible: screen.content.hasPeriod
        width: screen.contentWidth

        delegate: FilteredListRow {
            width: list.width
        }
        header: TransactionChart {
            chart: screen.content.chart
            width: list.width

            // A header that grows stays above the top of the view unless it is asked in.
            onHeightChanged: list.positionViewAtBeginning()
        }
    }
    ActionButton {
        anchors.bottom: picker.top
        anchors.bottomMargin: Metrics.padding
        anchors.horizontalCenter: parent.horizontalCenter
        symbol: "plus"
        text: qsTr("🙄 create a transaction")
        visible: !screen.content.hasPeriod

        onClicked: screen.content.showAddTransaction = true
    }
    TimeFramePicker {
        id: picker

        anchors.bottom: parent.bottom
        choices: screen.content.timeFrames
        height: visible ? implicitHeight : 0
        selected: screen.content.selectedTimeFrame
        visible: screen.content.hasTransactions
        width: parent.width

        onPicked: value => screen.content.select(value)
    }
    LateLoader {
        file: Qt.resolvedUrl("AddTransactionSheet.qml")
        properties: ({
                "content": screen.content
            })
        wanted: screen.content.showAddTransaction
    }
    LateLoader {
        file: Qt.resolvedUrl("TransactionsSheet.qml")
        properties: ({
                "content": screen.content
            })
        wanted: screen.content.showTransactions
    }
}
