import QtQuick

/*! The bar at the top of a page: the way back, its title in the middle, buttons. */
Item {
    id: bar

    property string title
    /*! True shows the back button. */
    property bool canGoBack: false
    /*! The buttons at the trailing end. */
    property alias trailing: trailingRow.data
    readonly property real side: Math.max(canGoBack ? backButton.width : 0, trailingRow.width) + Metrics.step * 2

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
