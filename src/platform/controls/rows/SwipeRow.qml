import QtQuick
import Kovamo.Controls
import Kovamo.Desktop

/*! A row of a list that is pulled aside to uncover "Delete"; pulled far enough, it deletes. The
    Delete key and the row's menu do the same. */
DeletableRow {
    id: row

    /*! What a screen reader says for the whole row. */
    property string accessibleName
    property color color: SystemColors.cell
    default property alias content: slot.data
    /*! How far the row is pulled aside, in points. */
    property real offset: 0
    readonly property bool opened: offset > 0 && !drag.active
    /*! Whether the user sees that the keyboard talks to it. */
    readonly property bool isMarked: visualFocus || opened
    readonly property real uncovered: Math.max(80, deleteText.implicitWidth + Metrics.padding * 2)
    readonly property int direction: LayoutMirroring.enabled ? 1 : -1

    function close() {
        row.slide(0);
    }

    function rest() {
        row.offset = 0;
        movement.stop();
        row.visible = false;
    }

    /*! Shows the menu a little beside a point, so that a double click does not hit its first item. */
    function showMenu(x: real, y: real) {
        row.forceActiveFocus(Qt.MouseFocusReason);
        menu.popup(row, x + Metrics.step, y + Metrics.step);
    }

    /*! Opens the row, or closes it where it is pulled aside. In Qt 6.4, right clicks come here, too, on
        Wayland. */
    function take(button: int) {
        if (button === Qt.RightButton)
            return;
        row.forceActiveFocus(Qt.MouseFocusReason);
        row.offset > 0 ? row.close() : row.clicked();
    }

    function slide(to: real) {
        movement.to = to;
        movement.restart();
    }

    function release() {
        row.slide(row.offset > row.width * 0.6 ? row.width : row.offset > row.uncovered / 2 ? row.uncovered : 0);
    }

    Accessible.name: accessibleName
    Accessible.role: Accessible.ListItem
    // Ignores auto-repeat, so that holding the key deletes one record and not the list, and does
    // nothing while no row is marked: the user could not tell which record would go.
    Keys.onDeletePressed: event => {
        if (row.isMarked && !event.isAutoRepeat)
            row.deleteRequested();
    }
    Keys.onEscapePressed: event => {
        event.accepted = row.offset > 0;
        row.close();
    }
    Keys.onMenuPressed: if (row.isMarked)
        row.showMenu(row.width / 2, row.height / 2)
    activeFocusOnTab: true
    implicitHeight: Metrics.rowHeight
    width: ListView.view ? ListView.view.width : implicitWidth

    // A pooled delegate would stay in the accessibility tree, and open for its next record.
    ListView.onPooled: row.rest()
    ListView.onReused: row.visible = true
    onActivated: row.clicked()
    // The Delete key must mean the row that is open, not the one that had the focus.
    onOpenedChanged: if (opened)
        row.forceActiveFocus(Qt.MouseFocusReason)

    // Where the app was busy, a tap's press looks long until its release is read, which waits already.
    Timer {
        id: letGo

        interval: 50

        onTriggered: row.showMenu(tap.point.position.x, tap.point.position.y)
    }
    NumberAnimation {
        id: movement

        duration: Motion.duration(250)
        easing.type: Easing.OutCubic
        property: "offset"
        target: row

        onFinished: if (row.offset === row.width)
            row.deleteRequested()
    }
    Item {
        anchors.fill: parent
        clip: row.offset > 0

        Rectangle {
            color: row.offset > 0 ? SystemColors.red : "transparent"
            height: parent.height
            width: Math.max(row.uncovered, row.offset)
            x: row.LayoutMirroring.enabled ? 0 : parent.width - width

            PlainText {
                id: deleteText

                Accessible.ignored: true
                anchors.left: parent.left
                anchors.leftMargin: Metrics.padding
                anchors.verticalCenter: parent.verticalCenter
                color: SystemColors.white
                text: qsTr("Delete")
                visible: row.offset > 0
            }
            TapHandler {
                gesturePolicy: TapHandler.ReleaseWithinBounds

                // The row slides out first: deleted at once, a second tap would hit the row that moves up.
                onTapped: row.slide(row.width)
            }
        }
        Rectangle {
            color: (tap.pressed || menu.visible) && row.offset === 0 ? Qt.tint(row.color, SystemColors.fill) : row.color
            height: parent.height
            width: parent.width
            x: row.direction * row.offset

            Item {
                id: slot

                anchors.fill: parent
            }
            TapHandler {
                id: tap

                gesturePolicy: TapHandler.ReleaseWithinBounds

                onLongPressed: letGo.start()
                onPressedChanged: letGo.stop()
                onTapped: (eventPoint, button) => row.take(button)
            }
            RightClick {
                onClicked: (x, y) => row.showMenu(x, y)
            }
            DragHandler {
                id: drag

                property real start: 0

                target: null
                yAxis.enabled: false

                onActiveChanged: {
                    movement.stop();
                    if (active)
                        start = row.offset;
                    else
                        row.release();
                }
                onActiveTranslationChanged: row.offset = Math.max(0, Math.min(row.width, start + row.direction * activeTranslation.x))
            }
        }
    }
    OutsideTap {
        enabled: row.opened
        inside: row

        onTapped: row.close()
    }
    ContextMenu {
        id: menu

        MenuItem {
            destructive: true
            symbol: "trash"
            text: deleteText.text

            onTriggered: row.deleteRequested()
        }
    }
    FocusRing {
        visible: row.visualFocus
        distance: -2
    }
}
