import QtQuick
import Kovamo.Controls
import Kovamo.Dashboard
import Kovamo.Desktop

/*! The main screen: balance, chart and list of the selected time frame. */
FocusScope {
    id: screen

    required property ContentState content
    readonly property real contentWidth: Math.min(width, 700)

    Component.onCompleted: content.appear()

    Rectangle {
        anchors.fill: parent
        color: SystemColors.background
    }
    // Application-wide and switched off by hand: whether a window shortcut works under a popup
    // depends on when Qt Quick Controls were loaded.
    Shortcut {
        context: Qt.ApplicationShortcut
        enabled: !screen.content.isCovered
        sequence: "Ctrl+N"

        onActivated: screen.content.showAddTransaction = true
    }
    Shortcut {
        context: Qt.ApplicationShortcut
        enabled: !screen.content.isCovered
        sequence: "Ctrl+L"

        onActivated: screen.content.showTransactions = true
    }
    Shortcut {
        context: Qt.ApplicationShortcut
        enabled: !screen.content.isCovered
        sequence: "Ctrl+F"

        onActivated: screen.content.findTransactions()
    }
    Item {
        id: bar

        height: Metrics.rowHeight
        width: parent.width

        BarButton {
            anchors.left: parent.left
            anchors.leftMargin: Metrics.step
            description: qsTr("Shows all transactions")
            symbol: "list.bullet"
            text: qsTr("Add Item")

            onClicked: screen.content.showTransactions = true
        }
        BarButton {
            anchors.right: parent.right
            anchors.rightMargin: Metrics.step
            description: qsTr("Records a new transaction")
            symbol: "plus"
            text: qsTr("Add Item")

            onClicked: screen.content.showAddTransaction = true
        }
    }
    LateLoader {
        anchors.bottom: picker.top
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: bar.bottom
        file: Qt.resolvedUrl("PeriodView.qml")
        properties: ({
                "content": screen.content
            })
        visible: wanted
        wanted: screen.content.hasPeriod
        width: screen.contentWidth
    }
    LateLoader {
        anchors.bottom: picker.top
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: bar.bottom
        file: Qt.resolvedUrl("CreateButton.qml")
        properties: ({
                "content": screen.content
            })
        visible: wanted
        wanted: screen.content.isEmpty
        width: screen.contentWidth
    }
    LateLoader {
        id: picker

        anchors.bottom: parent.bottom
        file: Qt.resolvedUrl("TimeFramePicker.qml")
        height: visible ? implicitHeight : 0
        properties: ({
                "content": screen.content
            })
        visible: wanted
        wanted: screen.content.hasTransactions
        width: parent.width
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
    // Made when it is first wanted: few starts bring a file.
    Loader {
        readonly property bool wanted: screen.content.incoming.isPresented

        onWantedChanged: if (status === Loader.Null)
            setSource(Qt.resolvedUrl("../Editing/ExchangeSheet.qml"), {
                    "exchange": screen.content.incoming
                })
    }
}
