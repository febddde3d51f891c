pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kovamo.Controls
import Kovamo.Desktop

/*! A field for one line of plain text of any length, in a row whose height the text does not
    change. The owner holds the text: it hears `edited` and sets `text`, to what was typed or to
    something else. */
FormRow {
    id: field

    property string text
    property string placeholder
    /*! True asks for the keypad of digits. What may be typed is the owner's to say. */
    property bool numeric: false
    /*! What stands at the trailing end, before the button that clears. */
    property alias trailing: slot.data

    /*! The user changed the text to `text`. */
    signal edited(string text)

    // Characters that the owner rejects lie before the caret: keep its distance from the end.
    function follow() {
        if (input.text === field.text)
            return;
        const behind = input.length - input.cursorPosition;
        input.text = field.text;
        input.cursorPosition = Math.max(0, input.length - behind);
    }

    onActiveFocusChanged: if (activeFocus)
        input.forceActiveFocus()
    onTextChanged: follow()

    Component.onCompleted: follow()

    T.TextField {
        id: input

        // Half of the caret is drawn to the left of the first letter.
        readonly property int halfCaret: 1

        Accessible.name: field.placeholder
        anchors.left: parent.left
        anchors.leftMargin: -halfCaret
        anchors.right: accessories.left
        anchors.verticalCenter: parent.verticalCenter
        clip: true
        color: SystemColors.label
        font: TextStyles.body
        horizontalAlignment: Text.AlignLeft
        implicitHeight: contentHeight
        implicitWidth: 100
        leftPadding: halfCaret
        inputMethodHints: field.numeric ? Qt.ImhDigitsOnly : Qt.ImhNone
        maximumLength: 2147483647
        rightPadding: halfCaret
        selectByMouse: true
        selectedTextColor: SystemColors.white
        selectionColor: SystemColors.accent

        cursorDelegate: Item {
            visible: input.cursorVisible

            Rectangle {
                color: SystemColors.accent
                height: parent.height
                width: 2 * input.halfCaret
                x: -input.halfCaret
            }

            SequentialAnimation on opacity  {
                // Finish the blink, so that the caret never stops while it is invisible.
                alwaysRunToEnd: true
                loops: Animation.Infinite
                running: input.cursorVisible && !Motion.reduced

                PauseAnimation {
                    duration: Application.styleHints.cursorFlashTime / 2
                }
                PropertyAction {
                    value: 0
                }
                PauseAnimation {
                    duration: Application.styleHints.cursorFlashTime / 2
                }
                PropertyAction {
                    value: 1
                }
            }
        }

        onTextEdited: {
            field.edited(input.text);
            field.follow();
        }

        PlainText {
            Accessible.ignored: true
            anchors.fill: parent
            anchors.leftMargin: input.halfCaret
            color: SystemColors.tertiaryLabel
            text: field.placeholder
            verticalAlignment: Text.AlignVCenter
            visible: input.length === 0 && input.preeditText === ""
        }
    }
    Row {
        id: accessories

        anchors.right: parent.right
        // The symbol is narrower than its button: shift it so that it lines up with the rows' ends.
        anchors.rightMargin: slot.children.length > 0 ? (Metrics.symbolSize - Metrics.rowHeight) / 2 : 0
        anchors.verticalCenter: parent.verticalCenter

        ClearButton {
            anchors.verticalCenter: parent.verticalCenter
            visible: input.activeFocus && input.length > 0

            onClicked: field.edited("")
        }
        Row {
            id: slot
        }
    }

    TapHandler {
        onTapped: input.forceActiveFocus(Qt.MouseFocusReason)
    }
}
