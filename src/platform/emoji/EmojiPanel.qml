import QtQuick
import Kovamo.Controls
import Kovamo.Emoji
import Kovamo.Forms

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
    SearchBar {
        id: search

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.topMargin: Metrics.step * 3
        placeholder: qsTr("Search emoji")
        text: rows.query

        onCancelled: panel.cancelled()
        onEdited: text => rows.query = text
        onEntered: panel.pick(rows.cursorText)
        onWentOn: grid.forceActiveFocus(Qt.TabFocusReason)
    }
    EmojiGrid {
        id: grid

        anchors.bottom: bar.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: search.bottom
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
