import QtQuick
import Kovamo.Controls
import Kovamo.Editing

/*! A row of the period's list, for looking only. */
Focusable {
    id: row

    required property transactionLine line
    required property bool hasDivider

    Accessible.name: line.sentence
    Accessible.role: Accessible.ListItem
    activeFocusOnTab: ListView.isCurrentItem || activeFocus
    focus: ListView.isCurrentItem
    implicitHeight: words.implicitHeight

    // A pooled delegate would stay in the accessibility tree.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true

    TransactionRow {
        id: words

        line: row.line
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
    FocusRing {
        distance: -2
        visible: row.visualFocus
    }
}
