import QtQuick
import Kovamo.Controls
import Kovamo.Editing
import Kovamo.Foundation

/*! The line that stands for a transaction: emoji, title, the mark of a recurrence, the amount. */
Item {
    id: row

    required property transactionLine line
    /*! Whether the mark is shown on what recurs. */
    property bool marksRecurring: false

    implicitHeight: Math.max(Metrics.rowHeight, titleText.implicitHeight + Metrics.step * 4)

    EmojiText {
        id: emojiText

        anchors.left: parent.left
        anchors.leftMargin: Metrics.padding
        anchors.verticalCenter: parent.verticalCenter
        color: SystemColors.label
        font: TextStyles.body
        text: row.line.emoji
        width: Math.min(implicitWidth, row.width / 4)
    }
    PlainText {
        id: titleText

        Accessible.ignored: true
        anchors.left: emojiText.right
        anchors.leftMargin: Metrics.step * 2
        anchors.verticalCenter: parent.verticalCenter
        text: row.line.title
        width: Math.min(implicitWidth, row.width - emojiText.width - amountText.width - Metrics.padding * 2 - Metrics.step * 4 - (symbol.visible ? symbol.width + Metrics.step * 2 : 0))
    }
    SystemImage {
        id: symbol

        anchors.left: titleText.right
        anchors.leftMargin: Metrics.step * 2
        anchors.verticalCenter: parent.verticalCenter
        color: SystemColors.label
        height: 20
        name: "arrow.triangle.2.circlepath.circle"
        visible: row.marksRecurring && row.line.isRecurring
        width: 20
    }
    PlainText {
        id: amountText

        Accessible.ignored: true
        anchors.right: parent.right
        anchors.rightMargin: Metrics.padding
        anchors.verticalCenter: parent.verticalCenter
        text: row.line.amount
    }
}
