import QtQuick
import Kovamo.Controls
import Kovamo.Dashboard
import Kovamo.Editing

// Sheet creates its content in another file, which ComponentBehavior: Bound does not allow.
// qmllint disable unqualified

/*! All transactions, on a sheet. */
Sheet {
    id: sheet

    required property ContentState content

    presented: content.showTransactions
    title: content.transactionsView ? content.transactionsView.navigationTitle : ""

    onClosed: content.transactionsDidClose()
    onDismissed: content.showTransactions = false

    TransactionsView {
        transactions: sheet.content.transactionsView
    }
}
