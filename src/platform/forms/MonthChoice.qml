pragma ComponentBehavior: Bound
import QtQuick
import Kovamo.Controls
import Kovamo.Forms
import Kovamo.Desktop

/*! The months of a year, to choose the one to show. */
Grid {
    id: choice

    required property MonthCalendar calendar

    signal chosen

    columns: 3

    Repeater {
        // Hidden, its cells would ask the calendar for every month at each turn of the page.
        model: choice.visible ? choice.calendar.months : []

        Pressable {
            id: month

            required property int index
            required property string modelData
            readonly property bool selected: index === choice.calendar.month

            Accessible.role: Accessible.RadioButton
            Accessible.checked: selected
            enabled: index >= choice.calendar.firstMonth
            implicitHeight: Metrics.rowHeight + Metrics.step * 2
            text: modelData
            width: choice.width / choice.columns

            onClicked: {
                choice.calendar.showMonth(index);
                choice.chosen();
            }

            Rectangle {
                anchors.fill: parent
                anchors.margins: Metrics.step
                color: SystemColors.fill
                radius: height / 2
                visible: month.selected
            }
            PlainText {
                Accessible.ignored: true
                anchors.centerIn: parent
                color: !month.enabled ? SystemColors.tertiaryLabel : month.selected ? SystemColors.accent : SystemColors.label
                font: month.selected ? TextStyles.headline : TextStyles.body
                fontSizeMode: Text.HorizontalFit
                text: month.text
                width: Math.min(implicitWidth, parent.width - Metrics.step * 2)
            }
        }
    }
}
