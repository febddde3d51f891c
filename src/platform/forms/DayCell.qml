import QtQuick
import Kovamo.Controls
import Kovamo.Forms
import Kovamo.Desktop

/*! One day of a month: its number, on a disc when it is the picked one. */
Item {
    id: cell

    required property MonthCalendar calendar
    required property bool ringed
    required property int index
    required property string text
    required property string fullText
    required property bool selected
    required property bool today
    required property bool available

    Accessible.checked: selected
    Accessible.ignored: text === ""
    Accessible.name: fullText
    Accessible.role: Accessible.RadioButton
    enabled: available

    Accessible.onPressAction: calendar.pick(index)

    Rectangle {
        anchors.centerIn: parent
        color: cell.today ? SystemColors.accent : Qt.tint(SystemColors.cell, SystemColors.fill)
        height: width
        radius: width / 2
        visible: cell.selected
        width: Math.min(cell.width, cell.height) - (cell.ringed ? 8 : 2)
    }
    Rectangle {
        anchors.centerIn: parent
        border.color: SystemColors.accent
        border.width: 2
        color: "transparent"
        height: width
        radius: width / 2
        visible: cell.ringed
        width: Math.min(cell.width, cell.height)
    }
    PlainText {
        Accessible.ignored: true
        anchors.centerIn: parent
        color: cell.selected && cell.today ? SystemColors.white : !cell.available ? SystemColors.tertiaryLabel : cell.selected || cell.today ? SystemColors.accent : SystemColors.label
        font: cell.selected ? TextStyles.headline : TextStyles.body
        text: cell.text
    }
    TapHandler {
        gesturePolicy: TapHandler.ReleaseWithinBounds

        onTapped: cell.calendar.pick(cell.index)
    }
}
