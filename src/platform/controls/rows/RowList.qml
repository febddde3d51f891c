import QtQuick
import Kovamo.Controls

/*! A list of rows to walk along by the keyboard: by the row, by the page, to either end. The row
    that shows the keyboard's ring is in sight; one that is pulled aside closes as the list moves. */
ListView {
    id: list

    /*! The row to which a key leads; -1 for none. */
    function rowFor(key: int): int {
        const page = Math.max(1, Math.floor(list.height / (list.currentItem?.height ?? list.height)) - 1);
        switch (key) {
        case Qt.Key_Home:
            return 0;
        case Qt.Key_End:
            return list.count - 1;
        case Qt.Key_PageUp:
            return Math.max(0, list.currentIndex - page);
        case Qt.Key_PageDown:
            return Math.min(list.count - 1, list.currentIndex + page);
        default:
            return -1;
        }
    }

    /*! Shows the first row below the whole of the top margin. */
    function showTop() {
        list.positionViewAtBeginning();
        list.contentY -= list.topMargin;
    }

    function showMarked() {
        if ((list.currentItem as Focusable)?.visualFocus)
            list.positionViewAtIndex(list.currentIndex, ListView.Contain);
    }

    Accessible.role: Accessible.List
    clip: true
    highlightMoveDuration: 0
    keyNavigationEnabled: true
    reuseItems: true

    Keys.onPressed: event => {
        const row = list.rowFor(event.key);
        event.accepted = row >= 0;
        if (event.accepted)
            list.currentIndex = row;
    }

    onHeightChanged: showMarked()
    onMovementStarted: (list.currentItem as SwipeRow)?.close()

    Connections {
        function onVisualFocusChanged() {
            list.showMarked();
        }

        target: list.currentItem as Focusable
    }
}
