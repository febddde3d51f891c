import QtQuick
import Kovamo.Controls
import Kovamo.Forms
import Kovamo.Desktop

/*! A field to search by, and a button that ends the search. The owner holds the text: it hears
    `edited` and sets `text`. */
FocusScope {
    id: bar

    property alias text: field.text
    required property string placeholder

    /*! The user changed the text to `text`. */
    signal edited(string text)
    /*! The user ends the search. */
    signal cancelled
    /*! The user moves down to what was found. */
    signal wentOn
    /*! The user pressed Enter or Return. */
    signal entered

    /*! Gives the focus to the field. */
    function edit() {
        field.forceActiveFocus(Qt.ShortcutFocusReason);
    }

    implicitHeight: field.height

    Rectangle {
        anchors.fill: row
        color: SystemColors.fill
        radius: Metrics.cardRadius
    }
    Item {
        id: row

        anchors.left: parent.left
        anchors.leftMargin: Metrics.padding
        anchors.right: cancel.left
        height: field.height

        FormTextField {
            id: field

            Keys.onDownPressed: bar.wentOn()
            Keys.onEnterPressed: bar.entered()
            Keys.onReturnPressed: bar.entered()
            focus: true
            isFirst: true
            placeholder: bar.placeholder

            onEdited: text => bar.edited(text)
        }
    }
    Pressable {
        id: cancel

        anchors.right: parent.right
        anchors.verticalCenter: row.verticalCenter
        implicitWidth: cancelText.implicitWidth + Metrics.step * 3 + Metrics.padding
        text: qsTr("Cancel")

        onClicked: bar.cancelled()

        PlainText {
            id: cancelText

            Accessible.ignored: true
            anchors.left: parent.left
            anchors.leftMargin: Metrics.step * 3
            anchors.verticalCenter: parent.verticalCenter
            color: SystemColors.accent
            text: cancel.text
        }
    }
}
