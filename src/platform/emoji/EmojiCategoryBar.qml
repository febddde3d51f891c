pragma ComponentBehavior: Bound
import QtQuick
import Kovamo.Controls
import Kovamo.Emoji
import Kovamo.Desktop

/*! The categories of emoji, side by side, to jump to. */
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
    Row {
        id: row

        anchors.centerIn: parent
        width: Math.min(parent.width - Metrics.step * 2, Metrics.rowHeight * bar.categories.length)

        Repeater {
            model: bar.categories

            Pressable {
                id: tab

                required property int index
                required property emojiCategory modelData

                Accessible.role: Accessible.PageTab
                Accessible.selectable: true
                Accessible.selected: bar.category === index
                opacity: 1
                text: modelData.title
                width: row.width / bar.categories.length

                onClicked: bar.picked(index)

                Rectangle {
                    anchors.centerIn: parent
                    color: SystemColors.fill
                    height: width
                    radius: width / 2
                    visible: tab.Accessible.selected
                    width: Math.min(parent.width, parent.height)
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
}
