import QtQuick
import Kovamo.Foundation

/*! A scrolling form of sections on the grouped background. The field that has the focus stays in
    sight, above the on-screen keyboard too. */
FocusScope {
    id: form

    property string navigationTitle
    default property alias sections: column.data
    readonly property Item focusedItem: Window.activeFocusItem
    readonly property real keyboardTop: InputMethod.visible && Window.window ? InputMethod.keyboardRectangle.y : Infinity

    /*! Scrolls as little as needed to show the focused item. */
    function showFocused() {
        if (!form.activeFocus || form.focusedItem === null)
            return;
        const area = form.mapFromItem(form.focusedItem, 0, 0, form.focusedItem.width, form.focusedItem.height);
        const bottom = flick.height - flick.bottomMargin;
        if (area.y < 0)
            flick.contentY += area.y - Metrics.padding;
        else if (area.y + area.height > bottom)
            flick.contentY += area.y + area.height - bottom + Metrics.padding;
        flick.returnToBounds();
    }

    onFocusedItemChanged: settling.restart()
    onHeightChanged: settling.restart()
    onKeyboardTopChanged: settling.restart()

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
        bottomMargin: Math.max(0, form.mapToItem(null, 0, form.height).y - form.keyboardTop)
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
