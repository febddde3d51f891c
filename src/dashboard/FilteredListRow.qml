import QtQuick
import Kovamo.Controls
import Kovamo.Editing

/*! A row of the period's list, for looking only. */
Item {
    id: row

    required property string emoji
    required property string title
    required property string amount
    required property bool hasDivider
    required property string sentence

    Accessible.name: sentence
    Accessible.role: Accessible.ListItem
    implicitHeight: line.implicitHeight

    // A row in waiting is nothing to a screen reader.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true

    TransactionRow {
        id: line

        amount: row.amount
        emoji: row.emoji
        isRecurring: false
        title: row.title
        width: row.width
    }
    Divider {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.leftMargin: Metrics.padding
        anchors.right: parent.right
        anchors.rightMargin: Metrics.padding
        visible: row.hasDivider
    }
}
