import QtQuick
import Kovamo.Foundation

/*! One line of text, shown as it is written: the user's words are never taken for markup. */
Text {
    Accessible.name: text
    Accessible.role: Accessible.StaticText
    color: SystemColors.label
    elide: Text.ElideRight
    font: TextStyles.body
    horizontalAlignment: Text.AlignLeft
    maximumLineCount: 1
    textFormat: Text.PlainText
}
