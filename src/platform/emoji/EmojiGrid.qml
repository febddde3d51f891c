pragma ComponentBehavior: Bound
import QtQuick
import Kovamo.Controls
import Kovamo.Emoji
import Kovamo.Desktop

/*! Emoji by category, to scroll through or to walk along by the arrow keys. */
Focusable {
    id: grid

    required property EmojiRows rows
    /*! The category at the top. */
    readonly property int category: Math.max(0, rows.categoryOf(list.indexAt(0, list.contentY + cellSide)))
    readonly property real cellSide: Math.max(44, Math.ceil(sizer.height) + Metrics.step * 2)
    readonly property int columns: Math.max(1, Math.floor((width - 4 * Metrics.step) / cellSide))
    readonly property int back: LayoutMirroring.enabled ? 1 : -1
    /*! The first emoji in sight, and where the list stood when a new width had shown it. */
    property int firstPlace: 0
    property real shownAt: NaN
    property alias bottomMargin: list.bottomMargin

    /*! The user chose an emoji. */
    signal picked(string emoji)
    /*! The keyboard walked out over the first row. */
    signal leftAtTop

    function show(shownCategory: int) {
        rows.setCursorRow(rows.rowOf(shownCategory));
        list.positionViewAtIndex(rows.cursorRow, ListView.Beginning);
    }

    /*! Lays the rows out anew. However often the width changes, they begin with the same emoji. */
    function rearrange() {
        if (list.contentY !== shownAt)
            firstPlace = rows.placeOf(list.indexAt(0, list.contentY));
        rows.columns = columns;
        list.positionViewAtIndex(rows.rowAt(firstPlace), ListView.Beginning);
        shownAt = list.contentY;
    }

    function walkRow(by: int) {
        if (!rows.moveCursorRow(by) && by < 0)
            leftAtTop();
    }

    Accessible.focusable: true
    Accessible.name: activeFocus ? rows.cursorName : qsTr("Emoji")
    Accessible.role: Accessible.Grouping
    Keys.onDownPressed: grid.walkRow(1)
    Keys.onLeftPressed: grid.rows.moveCursor(back)
    Keys.onRightPressed: grid.rows.moveCursor(-back)
    Keys.onUpPressed: grid.walkRow(-1)
    activeFocusOnTab: true

    onActivated: picked(rows.cursorText)
    onColumnsChanged: rearrange()

    FontMetrics {
        id: sizer

        font: TextStyles.emoji
    }
    Connections {
        function onCursorChanged() {
            list.positionViewAtIndex(grid.rows.cursorRow, ListView.Contain);
        }

        target: grid.rows
    }
    ListView {
        id: list

        Accessible.name: qsTr("Emoji")
        Accessible.role: Accessible.List
        anchors.fill: parent
        bottomMargin: Metrics.step * 2
        cacheBuffer: 0
        clip: true
        keyNavigationEnabled: false
        // With no width yet, rows have no height, and ListView would create all 900 of them.
        model: width > 0 ? grid.rows : null
        reuseItems: true

        delegate: Column {
            id: row

            required property int index
            required property string heading
            required property list<string> texts
            required property list<string> names

            width: list.width

            // A pooled delegate would stay in the accessibility tree.
            ListView.onPooled: visible = false
            ListView.onReused: visible = true

            PlainText {
                Accessible.role: Accessible.Heading
                bottomPadding: Metrics.step
                color: SystemColors.secondaryLabel
                font: TextStyles.bold(TextStyles.footnote)
                leftPadding: Metrics.padding
                rightPadding: Metrics.padding
                text: row.heading
                topPadding: Metrics.step * 3
                visible: text !== ""
                width: row.width
            }
            Row {
                leftPadding: Metrics.step * 2
                rightPadding: Metrics.step * 2

                Repeater {
                    model: grid.columns

                    EmojiCell {
                        required property int index

                        emoji: row.texts[index] ?? ""
                        height: grid.cellSide
                        name: row.names[index] ?? ""
                        ringed: grid.visualFocus && grid.rows.cursorRow === row?.index && grid.rows.cursorColumn === index
                        width: (list.width - 4 * Metrics.step) / grid.columns

                        onPicked: grid.picked(emoji)
                    }
                }
            }
        }
    }
    PlainText {
        anchors.centerIn: parent
        color: SystemColors.secondaryLabel
        text: qsTr("No emoji found")
        visible: list.count === 0
    }
}
