pragma ComponentBehavior: Bound
import QtQuick
import Kovamo.Controls
import Kovamo.Dashboard
import Kovamo.Foundation

/*! Three texts to choose the time frame by. */
Column {
    id: picker

    required property list<timeFrameChoice> choices
    required property int selected

    signal picked(int value)

    Accessible.name: qsTr("Time frame")
    Accessible.role: Accessible.PageTabList

    Divider {
        width: parent.width
    }
    Row {
        id: row

        width: parent.width

        Repeater {
            model: picker.choices

            Focusable {
                id: choice

                required property int index
                required property timeFrameChoice modelData
                readonly property bool chosen: modelData.value === picker.selected

                function pick() {
                    picker.picked(modelData.value);
                }

                Accessible.checkable: true
                Accessible.checked: chosen
                Accessible.name: caption.text
                Accessible.role: Accessible.PageTab
                Keys.onEnterPressed: pick()
                Keys.onReturnPressed: pick()
                Keys.onSpacePressed: pick()
                activeFocusOnTab: true
                height: Math.max(50, caption.implicitHeight + Metrics.padding)
                width: row.width / picker.choices.length

                Accessible.onPressAction: pick()

                Shortcut {
                    sequence: choice.modelData.shortcut

                    onActivated: choice.pick()
                }
                Divider {
                    height: 50
                    vertical: true
                    visible: choice.index > 0
                }
                EmphasizedText {
                    id: caption

                    Accessible.ignored: true
                    anchors.fill: parent
                    anchors.margins: Metrics.step
                    color: choice.chosen ? SystemColors.label : SystemColors.gray
                    fits: true
                    horizontalAlignment: Text.AlignHCenter
                    markup: choice.modelData.label
                    opacity: tap.pressed ? 0.35 : 1
                    verticalAlignment: Text.AlignVCenter
                }
                TapHandler {
                    id: tap

                    gesturePolicy: TapHandler.ReleaseWithinBounds

                    onTapped: choice.pick()
                }
                FocusRing {
                    distance: -2
                    visible: choice.visualFocus
                }
            }
        }
    }
}
