pragma ComponentBehavior: Bound
import QtQuick
import Kovamo.Controls
import Kovamo.Emoji
import Kovamo.Desktop

/*! The categories of emoji, side by side, to jump to. Where they have no room they scroll, and the
    one that is in sight stays seen. */
Item {
    id: bar

    required property list<emojiCategory> categories
    /*! The category that is in sight. */
    required property int category

    signal picked(int category)

    Accessible.name: qsTr("Categories")
    Accessible.role: Accessible.PageTabList
    implicitHeight: Metrics.rowHeight + Metrics.step * 2

    Divider {
        width: parent.width
    }
    ListView {
        id: tabs

        anchors.centerIn: parent
        boundsBehavior: Flickable.StopAtBounds
        // All are made, so that the Tab key and a screen reader find them.
        cacheBuffer: Metrics.rowHeight * count
        clip: true
        currentIndex: bar.category
        height: Metrics.rowHeight
        highlightMoveDuration: Motion.duration(250)
        keyNavigationEnabled: false
        model: bar.categories
        orientation: ListView.Horizontal
        width: Math.min(parent.width, Metrics.rowHeight * count)

        delegate: Pressable {
            id: tab

            required property int index
            required property emojiCategory modelData

            Accessible.role: Accessible.PageTab
            Accessible.selectable: true
            Accessible.selected: bar.category === index
            opacity: 1
            text: modelData.title
            width: Metrics.rowHeight

            onActiveFocusChanged: if (activeFocus)
                tabs.positionViewAtIndex(index, ListView.Contain)
            onClicked: bar.picked(index)

            Rectangle {
                anchors.centerIn: parent
                color: SystemColors.fill
                height: width
                radius: width / 2
                visible: tab.Accessible.selected
                width: Metrics.rowHeight
            }
            EmojiText {
                anchors.centerIn: parent
                font: TextStyles.emoji
                opacity: tab.pressed ? 0.35 : 1
                scale: Math.min(1, (parent.width - Metrics.step * 2) / width)
                text: tab.modelData.symbol
            }
        }
    }
}
