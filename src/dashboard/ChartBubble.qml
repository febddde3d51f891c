import QtQuick
import Kovamo.Controls
import Kovamo.Foundation

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

    PlainText {
        id: words

        Accessible.ignored: true
        anchors.centerIn: parent
        font: TextStyles.footnote
        horizontalAlignment: Text.AlignHCenter
        maximumLineCount: 3
        text: bubble.text
        width: Math.min(implicitWidth, bubble.width - Metrics.step * 4)
    }
}
