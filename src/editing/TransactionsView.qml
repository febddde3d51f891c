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

    initialPage: TransactionsPage {
        transactions: screen.transactions
        isOnTop: screen.depth === 1 && screen.activeFocus
        room: screen.height

        onOpened: row => screen.open(row)
    }

    Component {
        id: formPage

        AddTransactionView {
        }
    }
    Connections {
        function onFormDismissed() {
            screen.pop();
        }

        target: screen.transactions as QtObject
    }
}
