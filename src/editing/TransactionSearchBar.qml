import QtQuick
import Kovamo.Controls
import Kovamo.Desktop
import Kovamo.Editing
import Kovamo.Forms

/*! The field above the list of all transactions, and how many it finds, with their sum. */
FocusScope {
    id: bar

    required property TransactionSearch search

    /*! The user moves down to the rows that were found. */
    signal wentOn

    /*! Gives the focus to the field. */
    function edit() {
        field.edit();
    }

    implicitHeight: field.height + summary.height + Metrics.step * 5

    SearchBar {
        id: field

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.topMargin: Metrics.step * 2
        focus: true
        placeholder: qsTr("Search transactions")
        text: bar.search.query

        onCancelled: bar.search.close()
        onEdited: text => bar.search.query = text
        onEntered: bar.wentOn()
        onWentOn: bar.wentOn()
    }
    PlainText {
        id: summary

        Accessible.ignored: true
        anchors.left: parent.left
        anchors.leftMargin: Metrics.padding * 2
        anchors.right: parent.right
        anchors.rightMargin: Metrics.padding
        anchors.top: field.bottom
        anchors.topMargin: Metrics.step
        color: SystemColors.secondaryLabel
        font: TextStyles.subheadline
        fontSizeMode: Text.HorizontalFit
        text: bar.search.summary
    }
    Announcement {
        Accessible.name: text
        Accessible.role: Accessible.Notification
        anchors.fill: summary
        // Announcement ignores an empty text. A blank makes it announce a summary that returns.
        text: bar.search.summary === "" ? " " : bar.search.summary
    }
}
