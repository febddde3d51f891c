import QtQuick
import QtQuick.Templates as T
import Kovamo.Controls

/*! What can be done with the text of a field, and with the clipboard's. */
ContextMenu {
    id: menu

    required property T.TextField textField

    /*! Shows the menu at a point of the field, with the keyboard's focus or without. */
    function show(x: real, y: real, takesFocus: bool) {
        menu.focus = takesFocus;
        menu.popup(menu.textField, x, y);
    }

    onClosed: menu.textField.forceActiveFocus(Qt.PopupFocusReason)

    MenuItem {
        enabled: menu.textField.canUndo && !menu.textField.readOnly
        text: qsTr("Undo")

        onTriggered: menu.textField.undo()
    }
    MenuItem {
        enabled: menu.textField.selectedText !== "" && !menu.textField.readOnly
        text: qsTr("Cut")

        onTriggered: menu.textField.cut()
    }
    MenuItem {
        enabled: menu.textField.selectedText !== ""
        text: qsTr("Copy")

        onTriggered: menu.textField.copy()
    }
    MenuItem {
        enabled: menu.textField.canPaste
        text: qsTr("Paste")

        onTriggered: menu.textField.paste()
    }
    MenuItem {
        enabled: menu.textField.selectedText.length < menu.textField.length
        text: qsTr("Select All")

        onTriggered: menu.textField.selectAll()
    }
}
