import QtQuick
import Kovamo.Controls
import Kovamo.Editing

// Sheet and NavigationStack create their content from components in other files, which pragma
// ComponentBehavior: Bound does not allow; so the ids of this file are used unqualified.
// qmllint disable unqualified

/*! The list of all transactions. Pulled down beyond its top it uncovers the search. */
FocusScope {
    id: page

    required property TransactionsState transactions
    /*! Whether neither a form nor a sheet lies over the list. */
    required property bool isOnTop
    /*! The height of the page and the navigation bar. */
    required property real room
    /*! Whether the navigation bar and the open search leave no room for a few rows: then the bar
        goes, and the search scrolls away with the rows. */
    readonly property bool hidesNavigationBar: search.isOpen && room < searchBar.implicitHeight + 3 * Metrics.rowHeight
    readonly property TransactionSearch search: transactions.search
    readonly property string navigationTitle: transactions.navigationTitle
    /*! The list's first row in sight and its current one, as they were when the search began. */
    property int topBefore: 0
    property int currentBefore: 0

    /*! The user wants to see what is behind a row. */
    signal opened(int row)

    function find() {
        if (!search.isOpen) {
            topBefore = Math.max(0, list.indexAt(0, list.contentY));
            currentBefore = list.currentIndex;
        }
        search.open();
        searchBar.edit();
    }

    /*! Shows the list as it was before the search. */
    function restore() {
        list.currentIndex = Math.min(currentBefore, list.count - 1);
        list.positionViewAtIndex(Math.min(topBefore, list.count - 1), ListView.Beginning);
        list.forceActiveFocus(Qt.OtherFocusReason);
    }

    /*! Deletes the record of a row. The next row has the focus at once, for the next key. */
    function remove(row: int) {
        transactions.remove([row]);
        list.forceLayout();
    }

    /*! Scrolls to a row that an undo has brought back. */
    function show(row: int) {
        if (row < 0)
            return;
        list.currentIndex = row;
        if (row === 0)
            list.showTop();
        else
            list.positionViewAtIndex(row, ListView.Contain);
    }

    Keys.onBackPressed: event => {
        event.accepted = search.isOpen;
        search.close();
    }
    Keys.onEscapePressed: event => {
        event.accepted = search.isOpen;
        search.close();
    }
    // Of the keys, what the list has no use for arrives here: up, above its first row.
    Keys.onUpPressed: if (search.isOpen)
        searchBar.edit()

    Component.onCompleted: if (search.isOpen)
        find()

    Connections {
        function onIsOpenChanged() {
            page.search.isOpen ? page.find() : page.restore();
        }
        function onQueryChanged() {
            if (page.search.isOpen)
                page.show(0);
        }

        target: page.search
    }
    Shortcut {
        context: Qt.ApplicationShortcut
        enabled: page.isOnTop
        sequence: "Ctrl+F"

        onActivated: page.find()
    }
    Shortcut {
        context: Qt.ApplicationShortcut
        enabled: page.isOnTop
        sequence: "Ctrl+Z"

        onActivated: page.show(page.transactions.takeBack())
    }
    TransactionSearchBar {
        id: searchBar

        readonly property real pulled: Math.max(0, -list.verticalOvershoot)

        enabled: page.search.isOpen
        opacity: page.search.isOpen ? 1 : Math.min(1, pulled / height)
        search: page.search
        visible: opacity > 0
        width: parent.width
        y: page.hidesNavigationBar ? list.originY - list.topMargin - list.contentY : 0

        onWentOn: list.forceActiveFocus(Qt.TabFocusReason)
    }
    RowList {
        id: list

        Accessible.name: page.navigationTitle
        focus: true
        // The last rows are not to lie behind the bar.
        height: parent.height - y - (deletionBar.enabled ? deletionBar.height + 2 * deletionBar.anchors.bottomMargin : 0)
        model: page.search
        topMargin: page.hidesNavigationBar ? searchBar.height : 0
        width: parent.width
        y: page.search.isOpen && !page.hidesNavigationBar ? searchBar.height : 0

        delegate: SwipeRow {
            id: row

            required property int index
            required property transactionLine line

            accessibleName: line.sentence
            activeFocusOnTab: ListView.isCurrentItem || activeFocus
            focus: ListView.isCurrentItem
            implicitHeight: words.implicitHeight

            onActiveFocusChanged: {
                if (activeFocus)
                    list.currentIndex = index;
                else
                    close();
            }
            onClicked: page.opened(index)
            onDeleteRequested: page.remove(index)

            TransactionRow {
                id: words

                line: row.line
                marksRecurring: true
                width: row.width
            }
            Divider {
                anchors.bottom: parent.bottom
                anchors.left: parent.left
                anchors.leftMargin: Metrics.padding
                anchors.right: parent.right
            }
        }

        Behavior on y  {
            NumberAnimation {
                duration: Motion.duration(250)
                easing.type: Easing.OutCubic
            }
        }

        onDragEnded: if (searchBar.pulled > searchBar.height / 2)
            page.find()
        onTopMarginChanged: if (page.hidesNavigationBar)
            showTop()
    }
    DeletionBar {
        id: deletionBar

        anchors.bottom: parent.bottom
        anchors.bottomMargin: Metrics.step * 2
        anchors.horizontalCenter: parent.horizontalCenter
        sentence: page.transactions.deleted.sentence
        width: Math.min(parent.width - Metrics.padding, Metrics.readableWidth)

        // "Undo" goes with the bar and must not take the focus along.
        onEnabledChanged: if (focus)
            list.focus = true
        onUndone: page.show(page.transactions.takeBack())
    }
}
