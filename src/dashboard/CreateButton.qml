import QtQuick
import Kovamo.Controls
import Kovamo.Dashboard

/*! What is shown of a time frame that nothing falls into: the way to record something. */
Item {
    id: empty

    required property ContentState content

    ActionButton {
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Metrics.padding
        anchors.horizontalCenter: parent.horizontalCenter
        symbol: "plus"
        text: qsTr("🙄 create a transaction")

        onClicked: empty.content.showAddTransaction = true
    }
}
