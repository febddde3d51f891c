pragma ComponentBehavior: Bound
import QtQuick
import Kovamo.Controls
import Kovamo.Desktop

/*! One choice out of a few, side by side. The owner holds the choice: it hears `picked` and sets
    `selected`. */
Focusable {
    id: control

    property list<string> labels
    /*! The label that is chosen. */
    property string selected
    readonly property int inset: 2
    /*! The height of what is drawn; the area to tap is as high as a row. */
    readonly property real trackHeight: Math.max(32, sizer.height + Metrics.step * 3)
    readonly property int index: labels.indexOf(selected)

    /*! The user chose `label`. */
    signal picked(string label)

    function step(by: int) {
        const next = control.index + (control.LayoutMirroring.enabled ? -by : by);
        if (next >= 0 && next < control.labels.length)
            control.picked(control.labels[next]);
    }

    Accessible.focusable: true
    Accessible.name: selected
    Accessible.role: Accessible.Grouping
    Keys.onLeftPressed: control.step(-1)
    Keys.onRightPressed: control.step(1)
    activeFocusOnTab: true
    implicitHeight: Math.max(Metrics.rowHeight, trackHeight)
    implicitWidth: Math.max(200, labels.length * 100)

    Rectangle {
        id: track

        anchors.verticalCenter: parent.verticalCenter
        color: SystemColors.fill
        height: control.trackHeight
        radius: 9
        width: parent.width
    }
    Rectangle {
        id: thumb

        readonly property int place: control.LayoutMirroring.enabled ? control.labels.length - 1 - control.index : control.index

        border.color: SystemColors.separator
        border.width: SystemColors.dark ? 0 : Metrics.hairline
        color: SystemColors.thumb
        height: track.height - 2 * control.inset
        radius: 7
        visible: control.index >= 0
        width: segments.cellWidth
        x: control.inset + place * segments.cellWidth
        y: track.y + control.inset

        Behavior on x  {
            enabled: thumb.visible && control.visible

            NumberAnimation {
                duration: Motion.duration(250)
                easing.type: Easing.OutCubic
            }
        }
    }
    EqualRow {
        id: segments

        height: control.height
        model: control.labels
        width: control.width - 2 * control.inset
        x: control.inset

        // A press on Text goes to the Flickable behind it, so the TapHandler lies on the segment.
        Item {
            id: segment

            required property string modelData
            readonly property bool chosen: modelData === control.selected

            Accessible.checkable: true
            Accessible.checked: chosen
            Accessible.focusable: true
            Accessible.name: modelData
            Accessible.role: Accessible.RadioButton
            height: parent.height
            implicitWidth: label.width + Metrics.step * 4
            width: segments.cellWidth

            Accessible.onPressAction: control.picked(modelData)
            Accessible.onToggleAction: control.picked(modelData)

            PlainText {
                id: label

                Accessible.ignored: true
                anchors.centerIn: parent
                font: segment.chosen ? TextStyles.style(15, TextStyles.demiBoldWeight) : TextStyles.subheadline
                opacity: tap.pressed && !segment.chosen ? 0.4 : 1
                scale: segments.shrink
                text: segment.modelData
            }
            TapHandler {
                id: tap

                gesturePolicy: TapHandler.ReleaseWithinBounds

                onTapped: control.picked(segment.modelData)
            }
        }
    }

    FontMetrics {
        id: sizer

        font: TextStyles.subheadline
    }
    FocusRing {
        anchors.fill: track
        radius: 10
        visible: control.visualFocus
    }
}
