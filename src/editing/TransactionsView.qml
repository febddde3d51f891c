import QtQuick
import Kovamo.Controls
import Kovamo.Editing

// Sheet and NavigationStack create their content from components in other files, which pragma
// ComponentBehavior: Bound does not allow; so the ids of this file are used unqualified.
// qmllint disable unqualified

/*! The screen of all stored transactions, with the form of each behind its row. */
NavigationStack {
    id: screen

    required property TransactionsState transactions

    function open(row: int) {
        if (transactions.edit(row))
            push(formPage, {
                    "transaction": transactions.form
                });
    }

    trailing: ExchangeButton {
        exchange: screen.transactions.exchange
        visible: !screen.canGoBack
    }

    initialPage: RowList {
        id: list

        property string navigationTitle: qsTr("Transactions")

        Accessible.name: navigationTitle
        model: screen.transactions

        delegate: SwipeRow {
            id: row

            required property int index
            required property transactionLine line

            accessibleName: line.sentence
            activeFocusOnTab: ListView.isCurrentItem || activeFocus
            focus: ListView.isCurrentItem
            implicitHeight: words.implicitHeight

            onActiveFocusChanged: {
                if (activeFocus)
                    list.currentIndex = index;
                else
                    close();
            }
            onClicked: screen.open(index)
            onDeleteRequested: screen.transactions.remove([index])

            TransactionRow {
                id: words

                line: row.line
                marksRecurring: true
                width: row.width
            }
            Divider {
                anchors.bottom: parent.bottom
                anchors.left: parent.left
                anchors.leftMargin: Metrics.padding
                anchors.right: parent.right
            }
        }
    }

    Component {
        id: formPage

        AddTransactionView {
        }
    }
    Connections {
        function onDismissed() {
            screen.pop();
        }

        target: screen.transactions.form
    }
}
