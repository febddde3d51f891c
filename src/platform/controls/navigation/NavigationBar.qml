import QtQuick

/*! The bar at the top of a screen: its title in the middle, buttons at both ends. */
Item {
    id: bar

    property string title
    /*! True shows the back button. */
    property bool canGoBack: false
    /*! The buttons at the leading and at the trailing end. */
    property alias leading: leadingRow.data
    property alias trailing: trailingRow.data
    readonly property real side: Math.max(leadingRow.width + (canGoBack ? backButton.width : 0), trailingRow.width) + Metrics.step * 2

    /*! The back button was pressed. */
    signal back

    implicitHeight: Math.max(Metrics.rowHeight, titleText.implicitHeight + Metrics.step * 4)

    BackButton {
        id: backButton

        anchors.left: parent.left
        height: parent.height
        room: (bar.width - titleText.implicitWidth) / 2 - Metrics.step * 2
        visible: bar.canGoBack

        onClicked: bar.back()
    }
    Row {
        id: leadingRow

        anchors.left: backButton.visible ? backButton.right : parent.left
        anchors.leftMargin: backButton.visible ? 0 : Metrics.step
        anchors.verticalCenter: parent.verticalCenter
    }
    PlainText {
        id: titleText

        Accessible.ignored: text === ""
        Accessible.role: Accessible.Heading
        anchors.centerIn: parent
        font: TextStyles.headline
        fontSizeMode: Text.HorizontalFit
        text: bar.title
        width: Math.min(implicitWidth, bar.width - 2 * bar.side)
    }
    Row {
        id: trailingRow

        anchors.right: parent.right
        anchors.rightMargin: Metrics.step
        anchors.verticalCenter: parent.verticalCenter
    }
}
