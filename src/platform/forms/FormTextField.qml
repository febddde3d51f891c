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
    /*! The field that Return leads to; after the last one it closes the on-screen keyboard. */
    property Item next: null
    /*! What stands at the trailing end, before the button that clears. */
    property alias trailing: slot.data

    /*! The user changed the text to `text`. */
    signal edited(string text)

    /*! The end of a text that is longer than Qt can lay out in a moment. Such a text can be cleared,
        but not edited: an edit would change the part that shows and keep the one that does not. */
    property string unseen
    readonly property int longest: 4000

    // Characters that the owner rejects lie before the caret: keep its distance from the end.
    function follow() {
        if (input.text + unseen === field.text)
            return;
        const behind = input.length - input.cursorPosition;
        // The two halves of a surrogate pair stay together.
        const end = field.text.charCodeAt(longest - 1) >> 10 === 0x36 ? longest - 1 : longest;
        unseen = field.text.slice(end);
        input.text = field.text.slice(0, end);
        input.cursorPosition = Math.max(0, input.length - behind);
    }

    function take() {
        // An on-screen keyboard can write into a field that is read-only.
        if (field.unseen === "")
            field.edited(input.text);
        field.follow();
    }

    /*! Shows the menu near a point of the text. A finger keeps its on-screen keyboard, which goes
        with the field's focus. */
    function showMenu(x: real, y: real, byFinger: bool) {
        input.forceActiveFocus(Qt.MouseFocusReason);
        if (!menu.item)
            menu.setSource(Qt.resolvedUrl("EditMenu.qml"), {
                    "textField": input
                });
        (menu.item as EditMenu).show(x, y + Metrics.step, !byFinger);
    }

    /*! Shows the menu for the keys that ask for it; false for any other. */
    function answer(key: int, modifiers: int): bool {
        const asked = key === Qt.Key_Menu || key === Qt.Key_F10 && modifiers === Qt.ShiftModifier;
        if (asked)
            showMenu(input.cursorRectangle.x, input.height, false);
        return asked;
    }

    /*! Selects the word that a finger is held on, and shows the menu; false where it is no finger. */
    function hold(x: real, y: real): bool {
        if (!finger.pressed)
            return false;
        input.forceActiveFocus(Qt.MouseFocusReason);
        input.cursorPosition = input.positionAt(x, y);
        input.selectWord();
        showMenu(x, input.height, true);
        return true;
    }

    /*! Takes the focus from the field, which closes the on-screen keyboard. */
    function leave() {
        if (field.next)
            field.next.forceActiveFocus(Qt.TabFocusReason);
        else
            input.focus = false;
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
        Keys.onPressed: event => event.accepted = field.answer(event.key, event.modifiers)
        EnterKey.type: field.next ? Qt.EnterKeyNext : Qt.EnterKeyDone
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
        // The menu takes the focus at the latest when it is pressed.
        persistentSelection: (menu.item as EditMenu)?.visible ?? false
        readOnly: field.unseen !== ""
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

        onAccepted: field.leave()
        onPressAndHold: event => event.accepted = field.hold(event.x, event.y)
        onTextEdited: field.take()

        RightClick {
            onClicked: (x, y) => field.showMenu(x, y, false)
        }
        TapHandler {
            id: finger

            acceptedDevices: PointerDevice.TouchScreen
        }
        PlainText {
            Accessible.ignored: true
            anchors.fill: parent
            anchors.leftMargin: input.halfCaret
            color: SystemColors.tertiaryLabel
            fontSizeMode: Text.HorizontalFit
            text: field.placeholder
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

    Loader {
        id: menu
    }
    TapHandler {
        onTapped: input.forceActiveFocus(Qt.MouseFocusReason)
    }
}
