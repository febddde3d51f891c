import QtQuick
import Kovamo.Foundation

/*! A scrolling form of sections on the grouped background. The field that has the focus stays in
    sight, also when the form becomes lower. */
FocusScope {
    id: form

    property string navigationTitle
    default property alias sections: column.data
    readonly property Item focusedItem: Window.activeFocusItem

    /*! Scrolls as little as needed to show the focused item. */
    function showFocused() {
        if (!form.activeFocus || form.focusedItem === null)
            return;
        const area = form.mapFromItem(form.focusedItem, 0, 0, form.focusedItem.width, form.focusedItem.height);
        if (area.y < 0)
            flick.contentY += area.y - Metrics.padding;
        else if (area.y + area.height > flick.height)
            flick.contentY += area.y + area.height - flick.height + Metrics.padding;
        flick.returnToBounds();
    }

    onFocusedItemChanged: settling.restart()
    onHeightChanged: settling.restart()

    // Rows find their places first.
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

        Column {
            id: column

            bottomPadding: Metrics.padding * 2
            spacing: Metrics.padding + Metrics.step
            topPadding: Metrics.step * 2
            width: Math.min(parent.width - 2 * Metrics.padding, Metrics.readableWidth)
            x: (parent.width - width) / 2
        }
    }
}
