import QtQuick
import Kovamo.Controls
import Kovamo.Editing
import Kovamo.Desktop

/*! The line that stands for a transaction: emoji, title, the mark of a recurrence, the amount. Where
    large text leaves the title no room, the amount stands below it. */
Item {
    id: row

    required property transactionLine line
    /*! Whether the mark is shown on what recurs. */
    property bool marksRecurring: false

    readonly property real margins: Metrics.padding * 2 + Metrics.step * 2 + (symbol.visible ? symbol.width + Metrics.step * 2 : 0)
    /*! The width that the emoji and the title cannot have beside the amount. */
    readonly property real taken: margins + amountText.width + Metrics.step * 2
    /*! The room for the title and the amount, and for the title beside the amount. */
    readonly property real room: width - emojiText.width - margins
    readonly property real roomBeside: room - amountText.width - Metrics.step * 2
    readonly property bool stacked: TextStyles.isLarge && titleText.implicitWidth > roomBeside

    // Accents can be piled up over the rows around.
    clip: true
    implicitHeight: Math.max(Metrics.rowHeight, titleText.height + (stacked ? amountText.height : 0) + Metrics.step * 4)

    EmojiText {
        id: emojiText

        anchors.left: parent.left
        anchors.leftMargin: Metrics.padding
        anchors.verticalCenter: titleText.verticalCenter
        color: SystemColors.label
        font: TextStyles.body
        maximumWidth: Math.max(row.width / 4, row.width - row.taken - titleText.implicitWidth)
        text: row.line.emoji
    }
    PlainText {
        id: titleText

        Accessible.ignored: true
        anchors.left: emojiText.right
        anchors.leftMargin: Metrics.step * 2
        anchors.verticalCenter: parent.verticalCenter
        anchors.verticalCenterOffset: row.stacked ? -amountText.height / 2 : 0
        maximumLineCount: TextStyles.isLarge ? 3 : 1
        text: row.line.title
        // Wrapped in a width of its own, a long word would change its implicit width, in a loop.
        width: row.stacked ? row.room : Math.min(implicitWidth, row.roomBeside)
        wrapMode: TextStyles.isLarge ? Text.Wrap : Text.NoWrap
    }
    SystemImage {
        id: symbol

        anchors.left: titleText.left
        anchors.leftMargin: Math.min(titleText.contentWidth, titleText.width) + Metrics.step * 2
        anchors.verticalCenter: titleText.verticalCenter
        color: SystemColors.label
        height: Metrics.symbolSize
        name: "arrow.triangle.2.circlepath.circle"
        visible: row.marksRecurring && row.line.isRecurring
        width: Metrics.symbolSize
    }
    PlainText {
        id: amountText

        Accessible.ignored: true
        anchors.right: parent.right
        anchors.rightMargin: Metrics.padding
        anchors.verticalCenter: parent.verticalCenter
        anchors.verticalCenterOffset: row.stacked ? titleText.height / 2 : 0
        text: row.line.amount
    }
}
