import QtQuick
import Kovamo.Controls
import Kovamo.Desktop

/*! A scrolling form of sections on the grouped background. The field that has the focus stays in
    sight, also when the form becomes lower, and with it what the field unfolds. */
FocusScope {
    id: form

    property string navigationTitle
    default property alias sections: column.data
    readonly property Item focusedItem: Window.activeFocusItem

    /*! Scrolls as little as needed to show the focused item, its top before its bottom. */
    function showFocused() {
        if (!form.activeFocus || form.focusedItem === null)
            return;
        const shown = (form.focusedItem as FormRow)?.whole ?? form.focusedItem;
        const area = form.mapFromItem(shown, 0, 0, shown.width, shown.height);
        const below = area.y + area.height + Metrics.padding - flick.height;
        if (area.y < 0 || below > 0)
            flick.contentY += area.y < 0 ? area.y - Metrics.padding : Math.min(below, area.y);
        flick.returnToBounds();
    }

    onFocusedItemChanged: settling.restart()
    onHeightChanged: settling.restart()

    // Wait until the Column has placed the rows.
    Timer {
        id: settling

        interval: 0

        onTriggered: form.showFocused()
    }
    Rectangle {
        anchors.fill: parent
        color: SystemColors.groupedBackground
    }
    Flickable {
        id: flick

        anchors.fill: parent
        boundsBehavior: Flickable.DragAndOvershootBounds
        clip: true
        contentHeight: column.height
        contentWidth: width
        flickableDirection: Flickable.VerticalFlick

        onContentHeightChanged: form.showFocused()

        Column {
            id: column

            bottomPadding: Metrics.padding * 2
            spacing: Metrics.padding + Metrics.step
            topPadding: Metrics.step * 2
            // On a narrow screen its margins leave a month the room it needs.
            width: Math.min(Math.max(parent.width - 2 * Metrics.padding, Metrics.weekWidth), Metrics.readableWidth)
            x: (parent.width - width) / 2
        }
    }
}
