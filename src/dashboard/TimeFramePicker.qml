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

            Item {
                id: choice

                required property int index
                required property timeFrameChoice modelData

                height: Math.max(50, button.implicitHeight)
                width: row.width / picker.choices.length

                Divider {
                    height: 50
                    vertical: true
                    visible: choice.index > 0
                }
                Pressable {
                    id: button

                    Accessible.checkable: true
                    Accessible.checked: choice.modelData.value === picker.selected
                    Accessible.role: Accessible.PageTab
                    anchors.fill: parent
                    text: caption.text

                    contentItem: EmphasizedText {
                        id: caption

                        Accessible.ignored: true
                        color: choice.modelData.value === picker.selected ? SystemColors.label : SystemColors.gray
                        horizontalAlignment: Text.AlignHCenter
                        markup: choice.modelData.label
                        verticalAlignment: Text.AlignVCenter
                    }

                    onClicked: picker.picked(choice.modelData.value)

                    FocusRing {
                        distance: -2
                        visible: button.visualFocus
                    }
                }
            }
        }
    }
}
