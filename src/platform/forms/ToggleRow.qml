import QtQuick
import Kovamo.Controls
import Kovamo.Desktop

/*! A row with a switch. The owner holds the state: it hears `toggled` and sets `checked`. */
FormRow {
    id: row

    property string label
    property bool checked: false

    /*! The user wants the switch to be `on`. */
    signal toggled(bool on)

    function toggle() {
        row.toggled(!row.checked);
    }

    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.name: label
    Accessible.role: Accessible.CheckBox
    contentHeight: Math.max(track.height, caption.implicitHeight)
    activeFocusOnTab: true

    Accessible.onPressAction: toggle()
    Accessible.onToggleAction: toggle()
    onActivated: toggle()

    PlainText {
        id: caption

        Accessible.ignored: true
        anchors.left: parent.left
        anchors.right: track.left
        anchors.verticalCenter: parent.verticalCenter
        text: row.label
    }
    Rectangle {
        id: track

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        color: row.checked ? SystemColors.green : SystemColors.fill
        height: 31
        radius: height / 2
        width: 51

        Behavior on color  {
            ColorAnimation {
                duration: Motion.duration(200)
            }
        }

        Rectangle {
            readonly property bool atRight: row.checked !== row.LayoutMirroring.enabled

            border.color: SystemColors.separator
            border.width: Metrics.hairline
            color: SystemColors.white
            height: 27
            radius: height / 2
            width: tap.pressed ? 31 : 27
            x: atRight ? track.width - width - 2 : 2
            y: 2

            Behavior on width  {
                NumberAnimation {
                    duration: Motion.duration(150)
                }
            }
            Behavior on x  {
                NumberAnimation {
                    duration: Motion.duration(200)
                    easing.type: Easing.OutCubic
                }
            }
        }
    }

    TapHandler {
        id: tap

        gesturePolicy: TapHandler.ReleaseWithinBounds

        onTapped: {
            row.forceActiveFocus(Qt.MouseFocusReason);
            row.toggle();
        }
    }
}
