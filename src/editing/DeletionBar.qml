import QtQuick
import Kovamo.Controls
import Kovamo.Desktop

/*! Says at the bottom of a list what was deleted, with a button that takes it back: beside the words
    or, where large text leaves them no room, below. */
FocusScope {
    id: bar

    /*! What was deleted; nothing hides the bar. */
    required property string sentence
    property string shownSentence

    signal undone

    enabled: sentence !== ""
    implicitHeight: (TextStyles.isLarge ? words.height + undo.height : Math.max(undo.height, words.height)) + Metrics.step * 2
    opacity: sentence === "" ? 0 : 1
    visible: opacity > 0

    Behavior on opacity  {
        NumberAnimation {
            duration: Motion.duration(200)
        }
    }

    // The last words stay while the bar goes.
    onSentenceChanged: if (sentence !== "")
        shownSentence = sentence

    Rectangle {
        anchors.fill: parent
        border.color: SystemColors.separator
        border.width: Metrics.hairline
        color: SystemColors.background
        radius: Metrics.cardRadius

        TapHandler {
            // A tap on the bar is none on the row behind it.
            gesturePolicy: TapHandler.WithinBounds
        }
    }
    PlainText {
        id: words

        Accessible.ignored: true
        anchors.left: parent.left
        anchors.leftMargin: Metrics.padding
        anchors.right: TextStyles.isLarge ? parent.right : undo.left
        anchors.rightMargin: TextStyles.isLarge ? Metrics.padding : 0
        anchors.verticalCenter: parent.verticalCenter
        anchors.verticalCenterOffset: TextStyles.isLarge ? -undo.height / 2 : 0
        maximumLineCount: 5
        text: bar.shownSentence
        wrapMode: Text.Wrap
    }
    Announcement {
        Accessible.name: text
        Accessible.role: Accessible.Notification
        anchors.fill: words
        text: bar.sentence === "" ? " " : bar.sentence
    }
    Pressable {
        id: undo

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.verticalCenterOffset: TextStyles.isLarge ? words.height / 2 : 0
        description: qsTr("Takes the deletion back")
        focus: true
        implicitWidth: undoText.implicitWidth + Metrics.padding * 2
        text: qsTr("Undo")

        onClicked: bar.undone()

        PlainText {
            id: undoText

            Accessible.ignored: true
            anchors.centerIn: parent
            color: SystemColors.accent
            font: TextStyles.headline
            text: undo.text
        }
    }
}
