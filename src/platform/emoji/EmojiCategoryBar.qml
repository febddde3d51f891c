pragma ComponentBehavior: Bound
import QtQuick
import Kovamo.Controls
import Kovamo.Emoji
import Kovamo.Foundation

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

            Focusable {
                id: tab

                required property int index
                required property emojiCategory modelData

                Accessible.checkable: true
                Accessible.checked: bar.category === index
                Accessible.name: modelData.title
                Accessible.role: Accessible.PageTab
                Keys.onEnterPressed: bar.picked(index)
                Keys.onReturnPressed: bar.picked(index)
                Keys.onSpacePressed: bar.picked(index)
                activeFocusOnTab: true
                height: Metrics.rowHeight
                width: row.width / bar.categories.length

                Accessible.onPressAction: bar.picked(index)

                Rectangle {
                    anchors.centerIn: parent
                    color: SystemColors.fill
                    height: width
                    radius: width / 2
                    visible: tab.Accessible.checked
                    width: Math.min(parent.width, parent.height)
                }
                TapHandler {
                    id: tap

                    gesturePolicy: TapHandler.ReleaseWithinBounds

                    onTapped: bar.picked(tab.index)
                }
                PlainText {
                    Accessible.ignored: true
                    anchors.centerIn: parent
                    font: TextStyles.emoji
                    fits: true
                    horizontalAlignment: Text.AlignHCenter
                    opacity: tap.pressed ? 0.35 : 1
                    text: tab.modelData.symbol
                    width: parent.width - Metrics.step * 2
                }
                FocusRing {
                    distance: -1
                    visible: tab.visualFocus
                }
            }
        }
    }
}
