import QtQuick
import Kovamo.Desktop

/*! One line of text, shown as it is written: the user's words are never taken for markup. With the
    font size mode Text.HorizontalFit, a text that is too wide is made smaller, down to half a
    footnote, before it is cut. */
Text {
    Accessible.name: text
    Accessible.role: Accessible.StaticText
    color: SystemColors.label
    elide: Text.ElideRight
    font: TextStyles.body
    horizontalAlignment: Text.AlignLeft
    maximumLineCount: 1
    minimumPixelSize: TextStyles.footnote.pixelSize / 2
    textFormat: Text.PlainText
    // Made smaller to fit, it stays in the middle of its line.
    verticalAlignment: Text.AlignVCenter
}
