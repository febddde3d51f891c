import Kovamo.App
import Kovamo.Engagement

/*! The rating prompt, which waits while one of the main screen's sheets is up. */
ReviewPrompt {
    required property RootState root

    sheetPresented: root.content.showAddTransaction || root.content.showTransactions
}
