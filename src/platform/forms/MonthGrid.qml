pragma ComponentBehavior: Bound
import QtQuick
import Kovamo.Controls
import Kovamo.Forms
import Kovamo.Desktop

/*! A month's days under the names of the week's, and the way to other months: to those around it, or
    by a press on the month's name to all of a year. */
Column {
    id: grid

    required property MonthCalendar calendar
    /*! Whether a year's months are shown in place of a month's days. */
    property bool choosesMonth: false
    readonly property real cellWidth: width / 7
    readonly property real cellHeight: Math.max(Metrics.rowHeight, sizer.height + Metrics.step * 3)

    /*! Shows the month, or the year, before the one that is shown or after it. */
    function turn(way: int, byYear: bool) {
        if (byYear)
            grid.calendar.moveYears(way);
        else if (way < 0)
            grid.calendar.previousMonth();
        else
            grid.calendar.nextMonth();
    }

    function showDays() {
        grid.choosesMonth = false;
        days.forceActiveFocus(Qt.TabFocusReason);
    }

    bottomPadding: Metrics.step * 2

    FontMetrics {
        id: sizer

        font: TextStyles.body
    }
    Item {
        height: Math.max(Metrics.rowHeight, title.implicitHeight)
        width: parent.width

        Pressable {
            id: title

            anchors.left: parent.left
            anchors.leftMargin: Metrics.step
            anchors.verticalCenter: parent.verticalCenter
            description: grid.choosesMonth ? qsTr("Shows the month's days") : qsTr("Shows the months of the year")
            text: grid.choosesMonth ? grid.calendar.year : grid.calendar.title
            width: Math.min(monthName.implicitWidth + unfold.width + Metrics.step * 5, parent.width - buttons.width - Metrics.step)

            onClicked: grid.choosesMonth = !grid.choosesMonth

            PlainText {
                id: monthName

                Accessible.ignored: true
                anchors.left: parent.left
                anchors.leftMargin: Metrics.step * 2
                anchors.right: unfold.left
                anchors.rightMargin: Metrics.step
                anchors.verticalCenter: parent.verticalCenter
                font: TextStyles.headline
                fontSizeMode: Text.HorizontalFit
                text: title.text
            }
            SystemImage {
                id: unfold

                anchors.right: parent.right
                anchors.rightMargin: Metrics.step * 2
                anchors.verticalCenter: parent.verticalCenter
                color: SystemColors.accent
                height: Metrics.symbolSize * 0.75
                name: "chevron.right"
                rotation: grid.choosesMonth ? 270 : 90
                width: height
            }
        }
        Row {
            id: buttons

            anchors.right: parent.right

            BarButton {
                enabled: grid.choosesMonth ? grid.calendar.firstMonth === 0 : grid.calendar.canGoBack
                symbol: LayoutMirroring.enabled ? "chevron.right" : "chevron.left"
                text: grid.choosesMonth ? qsTr("Previous year") : qsTr("Previous month")

                onClicked: grid.turn(-1, grid.choosesMonth)
                onEnabledChanged: if (!enabled && focus)
                    next.forceActiveFocus(Qt.TabFocusReason)
            }
            BarButton {
                id: next

                symbol: LayoutMirroring.enabled ? "chevron.left" : "chevron.right"
                text: grid.choosesMonth ? qsTr("Next year") : qsTr("Next month")

                onClicked: grid.turn(1, grid.choosesMonth)
            }
        }
    }
    MonthChoice {
        calendar: grid.calendar
        visible: grid.choosesMonth
        width: parent.width

        onChosen: grid.showDays()
    }
    EqualRow {
        id: weekdays

        model: grid.calendar.weekdays
        visible: !grid.choosesMonth
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
        visible: !grid.choosesMonth
        width: parent.width

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
