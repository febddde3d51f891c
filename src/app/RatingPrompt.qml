import Kovamo.App
import Kovamo.Engagement

/*! The rating prompt, which waits while a sheet is up. */
ReviewPrompt {
    required property RootState root

    sheetPresented: root.content.isCovered
}
