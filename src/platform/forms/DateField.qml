import QtQuick
import Kovamo.Controls
import Kovamo.Forms
import Kovamo.Desktop

/*! A row that shows a day and unfolds a month to pick another from. The owner holds the moment: it
    hears `picked` and sets `moment`. Moments are milliseconds since 1970 UTC. */
Column {
    id: field

    property string label
    property alias moment: month.moment
    /*! The moment before whose day nothing can be picked; NaN for none. */
    property alias minimumMoment: month.minimumMoment
    property bool unfolded: false

    /*! The user picked the day of `moment`. */
    signal picked(double moment)

    function toggle() {
        month.reset();
        grid.choosesMonth = false;
        field.unfolded = !field.unfolded;
        row.forceActiveFocus(Qt.MouseFocusReason);
    }

    width: parent ? parent.width : implicitWidth

    Keys.onEscapePressed: event => {
        event.accepted = field.unfolded;
        if (field.unfolded)
            field.toggle();
    }
    Keys.onPressed: event => {
        const way = event.key === Qt.Key_PageUp ? -1 : event.key === Qt.Key_PageDown ? 1 : 0;
        event.accepted = field.unfolded && way !== 0;
        if (event.accepted)
            grid.turn(way, grid.choosesMonth || event.modifiers & Qt.ShiftModifier);
    }
    onVisibleChanged: unfolded = false

    MonthCalendar {
        id: month

        onPicked: moment => field.picked(moment)
    }
    FormRow {
        id: row

        Accessible.description: month.momentText
        Accessible.name: field.label
        Accessible.role: Accessible.Button
        contentHeight: pill.height
        activeFocusOnTab: true
        isFirst: field.Positioner.isFirstItem
        whole: field

        Accessible.onPressAction: field.toggle()
        onActivated: field.toggle()

        PlainText {
            Accessible.ignored: true
            anchors.left: parent.left
            anchors.right: pill.left
            anchors.verticalCenter: parent.verticalCenter
            fontSizeMode: Text.HorizontalFit
            text: field.label
        }
        Rectangle {
            id: pill

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            color: SystemColors.fill
            height: day.implicitHeight + Metrics.step * 2
            opacity: tap.pressed ? 0.5 : 1
            radius: 6
            width: Math.min(parent.width * 0.7, day.implicitWidth + Metrics.step * 5)

            PlainText {
                id: day

                Accessible.ignored: true
                anchors.centerIn: parent
                color: field.unfolded ? SystemColors.accent : SystemColors.label
                fontSizeMode: Text.HorizontalFit
                text: month.momentText
                width: Math.min(implicitWidth, pill.parent.width * 0.7 - Metrics.step * 5)
            }
        }

        TapHandler {
            id: tap

            gesturePolicy: TapHandler.ReleaseWithinBounds

            onTapped: field.toggle()
        }
    }
    Item {
        clip: true
        height: field.unfolded ? grid.implicitHeight : 0
        visible: height > 0
        width: parent.width

        Behavior on height  {
            NumberAnimation {
                duration: Motion.duration(300)
                easing.type: Easing.OutCubic
            }
        }

        Divider {
            anchors.left: parent.left
            anchors.leftMargin: Metrics.padding
            anchors.right: parent.right
        }
        MonthGrid {
            id: grid

            anchors.horizontalCenter: parent.horizontalCenter
            calendar: month
            width: Math.min(Math.max(parent.width - 2 * Metrics.step, Metrics.weekWidth), 420)
        }
    }
}
