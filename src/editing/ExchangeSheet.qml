import Kovamo.Controls
import Kovamo.Editing

// Sheet creates its content in another file, which ComponentBehavior: Bound does not allow.
// qmllint disable unqualified

/*! What an export, an import or a copy brings, on a sheet. */
Sheet {
    id: sheet

    required property ExchangeState exchange

    presented: exchange.isPresented
    title: exchange.title

    onDismissed: exchange.dismiss()

    ExchangeView {
        exchange: sheet.exchange
    }
}
