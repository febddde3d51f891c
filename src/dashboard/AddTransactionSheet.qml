import QtQuick
import Kovamo.Controls
import Kovamo.Dashboard
import Kovamo.Editing

// NavigationStack creates the page in another file, which ComponentBehavior: Bound forbids.
// qmllint disable unqualified

/*! The form for a new transaction, on a sheet. */
Sheet {
    id: sheet

    required property ContentState content

    presented: content.showAddTransaction
    subject: content.addForm
    title: content.addForm ? content.addForm.navigationTitle : ""

    onClosed: content.addTransactionDidClose()
    onDismissed: content.showAddTransaction = false

    NavigationStack {
        initialPage: AddTransactionView {
            transaction: sheet.content.addForm
        }
    }
}
