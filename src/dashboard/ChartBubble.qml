pragma ComponentBehavior: Bound
import QtQuick
import Kovamo.Controls
import Kovamo.Desktop

/*! The small card above a chart's column. */
Rectangle {
    id: bubble

    /*! Title, amount and date, a line each; nothing hides the bubble. */
    required property string text
    /*! Where it points, in the coordinates of its parent. */
    required property real center

    border.color: SystemColors.separator
    color: SystemColors.cell
    implicitHeight: words.implicitHeight + Metrics.step * 3
    implicitWidth: words.implicitWidth + Metrics.step * 5
    radius: Metrics.cardRadius
    visible: text !== ""
    x: Math.max(0, Math.min(parent.width - width, center - width / 2))

    Column {
        id: words

        anchors.centerIn: parent

        Repeater {
            model: bubble.text.split("\n")

            PlainText {
                required property string modelData

                Accessible.ignored: true
                anchors.horizontalCenter: parent?.horizontalCenter
                font: TextStyles.footnote
                text: modelData
                width: Math.min(implicitWidth, bubble.parent.width - Metrics.step * 5)
            }
        }
    }
}
