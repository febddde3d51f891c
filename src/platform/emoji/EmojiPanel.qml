import QtQuick
import Kovamo.Controls
import Kovamo.Emoji
import Kovamo.Forms
import Kovamo.Desktop

/*! What a sheet shows to choose an emoji: a search, the emoji by category, and the categories to
    jump to. A letter typed anywhere begins the search. */
FocusScope {
    id: panel

    /*! What is searched for. */
    property alias query: rows.query

    /*! The user chose an emoji. */
    signal picked(string emoji)
    /*! The user wants none. */
    signal cancelled

    function pick(emoji: string) {
        if (emoji !== "")
            picked(emoji);
    }

    Keys.onPressed: event => {
        event.accepted = event.key < Qt.Key_Escape && event.text.trim() !== "" && (event.modifiers & Qt.ControlModifier) === 0 && !search.activeFocus;
        if (!event.accepted)
            return;
        rows.query += event.text;
        search.forceActiveFocus(Qt.TabFocusReason);
    }

    EmojiRows {
        id: rows
    }
    Rectangle {
        anchors.fill: searchRow
        color: SystemColors.fill
        radius: Metrics.cardRadius
    }
    Item {
        id: searchRow

        anchors.left: parent.left
        anchors.leftMargin: Metrics.padding
        anchors.right: cancel.left
        anchors.top: parent.top
        anchors.topMargin: Metrics.step * 3
        height: search.height

        FormTextField {
            id: search

            Keys.onDownPressed: grid.forceActiveFocus(Qt.TabFocusReason)
            Keys.onEnterPressed: panel.pick(rows.cursorText)
            Keys.onReturnPressed: panel.pick(rows.cursorText)
            isFirst: true
            placeholder: qsTr("Search emoji")
            text: rows.query

            onEdited: text => rows.query = text
        }
    }
    Pressable {
        id: cancel

        anchors.right: parent.right
        anchors.verticalCenter: searchRow.verticalCenter
        implicitWidth: cancelText.implicitWidth + Metrics.step * 3 + Metrics.padding
        text: qsTr("Cancel")

        onClicked: panel.cancelled()

        PlainText {
            id: cancelText

            Accessible.ignored: true
            anchors.left: parent.left
            anchors.leftMargin: Metrics.step * 3
            anchors.verticalCenter: parent.verticalCenter
            color: SystemColors.accent
            text: cancel.text
        }
    }
    EmojiGrid {
        id: grid

        anchors.bottom: bar.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: searchRow.bottom
        anchors.topMargin: Metrics.step
        bottomMargin: Metrics.step * 2
        focus: true
        rows: rows

        onLeftAtTop: search.forceActiveFocus(Qt.BacktabFocusReason)
        onPicked: emoji => panel.pick(emoji)
    }
    EmojiCategoryBar {
        id: bar

        anchors.bottom: parent.bottom
        categories: rows.categories
        category: grid.category
        height: visible ? implicitHeight : 0
        visible: rows.query === ""
        width: parent.width

        onPicked: category => grid.show(category)
    }
}
