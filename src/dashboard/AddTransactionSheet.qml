import QtQuick
import Kovamo.Controls
import Kovamo.Dashboard
import Kovamo.Editing

// The stack makes its page where the toolkit refuses bound components.
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
