pragma ComponentBehavior: Bound
import QtQuick
import Kovamo.Controls
import Kovamo.Forms
import Kovamo.Desktop

/*! A month's days under the names of the week's, and the way to the months around it. */
Column {
    id: grid

    required property MonthCalendar calendar
    readonly property real cellWidth: width / 7
    readonly property real cellHeight: Math.max(Metrics.rowHeight, sizer.height + Metrics.step * 3)

    bottomPadding: Metrics.step * 2

    FontMetrics {
        id: sizer

        font: TextStyles.body
    }
    Item {
        height: Math.max(Metrics.rowHeight, title.implicitHeight)
        width: parent.width

        PlainText {
            id: title

            anchors.left: parent.left
            anchors.leftMargin: Metrics.step * 3
            anchors.right: buttons.left
            anchors.verticalCenter: parent.verticalCenter
            font: TextStyles.headline
            fontSizeMode: Text.HorizontalFit
            text: grid.calendar.title
        }
        Row {
            id: buttons

            anchors.right: parent.right

            BarButton {
                enabled: grid.calendar.canGoBack
                symbol: LayoutMirroring.enabled ? "chevron.right" : "chevron.left"
                text: qsTr("Previous month")

                onClicked: grid.calendar.previousMonth()
                onEnabledChanged: if (!enabled && focus)
                    next.forceActiveFocus(Qt.TabFocusReason)
            }
            BarButton {
                id: next

                symbol: LayoutMirroring.enabled ? "chevron.left" : "chevron.right"
                text: qsTr("Next month")

                onClicked: grid.calendar.nextMonth()
            }
        }
    }
    EqualRow {
        id: weekdays

        model: grid.calendar.weekdays
        width: parent.width

        Item {
            id: weekday

            required property string modelData

            height: name.height
            implicitWidth: name.width + Metrics.step
            width: weekdays.cellWidth

            PlainText {
                id: name

                anchors.centerIn: parent
                color: SystemColors.secondaryLabel
                font: TextStyles.footnote
                scale: weekdays.shrink
                text: weekday.modelData
            }
        }
    }
    Focusable {
        id: days

        readonly property int back: LayoutMirroring.enabled ? 1 : -1

        Accessible.focusable: true
        Accessible.name: activeFocus ? grid.calendar.cursorText : grid.calendar.title
        Accessible.role: Accessible.Table
        Keys.onDownPressed: grid.calendar.moveCursor(7)
        Keys.onLeftPressed: grid.calendar.moveCursor(back)
        Keys.onRightPressed: grid.calendar.moveCursor(-back)
        Keys.onUpPressed: grid.calendar.moveCursor(-7)
        activeFocusOnTab: true
        implicitHeight: grid.calendar.weeks * grid.cellHeight
        width: parent.width

        Keys.onPressed: event => {
            event.accepted = event.key === Qt.Key_PageUp || event.key === Qt.Key_PageDown;
            if (event.key === Qt.Key_PageUp)
                grid.calendar.previousMonth();
            else if (event.key === Qt.Key_PageDown)
                grid.calendar.nextMonth();
        }
        onActivated: grid.calendar.pick(grid.calendar.cursor)

        Grid {
            columns: 7

            Repeater {
                model: grid.calendar

                DayCell {
                    calendar: grid.calendar
                    height: grid.cellHeight
                    ringed: days.visualFocus && index === grid.calendar.cursor
                    width: grid.cellWidth
                }
            }
        }
    }
}
