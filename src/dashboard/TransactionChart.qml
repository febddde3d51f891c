import QtQuick
import Kovamo.Controls
import Kovamo.Dashboard
import Kovamo.Desktop
import Kovamo.Views

/*! The chart with its title and range. Held, hovered or walked along by the arrow keys, it shows
    what stands behind a column in a bubble. */
FocusScope {
    id: row

    required property transactionChart chart
    /*! The column whose bubble shows; -1 for none. */
    property int column: -1
    /*! How much of its top is out of sight. */
    property real hidden: 0

    function step(by: int) {
        column = Math.max(0, Math.min(chart.count - 1, column + by));
    }

    implicitHeight: chart.isShown ? words.height + plot.height + Metrics.padding : 0
    visible: chart.isShown

    onActiveFocusChanged: column = -1
    onChartChanged: column = -1

    Column {
        id: words

        anchors.left: parent.left
        anchors.margins: Metrics.padding
        anchors.right: parent.right
        anchors.top: parent.top
        spacing: Metrics.step

        PlainText {
            Accessible.ignored: true
            anchors.horizontalCenter: parent.horizontalCenter
            font: TextStyles.headline
            fontSizeMode: Text.HorizontalFit
            text: row.chart.title
            visible: text !== ""
            width: Math.min(implicitWidth, parent.width)
        }
        EmphasizedText {
            Accessible.ignored: true
            anchors.horizontalCenter: parent.horizontalCenter
            color: SystemColors.gray
            fontSizeMode: Text.HorizontalFit
            markup: row.chart.range
            textStyle: TextStyles.subheadline
            width: Math.min(implicitWidth, parent.width)
        }
    }
    Focusable {
        id: plot

        Accessible.description: bubble.text
        Accessible.focusable: true
        Accessible.name: row.chart.sentence
        Accessible.role: Accessible.Chart
        Keys.onEscapePressed: event => {
            event.accepted = row.column >= 0;
            row.column = -1;
        }
        // Columns run from left to right in every language, so the arrow keys are not mirrored.
        Keys.onLeftPressed: row.step(-1)
        Keys.onRightPressed: row.step(1)
        activeFocusOnTab: true
        anchors.top: words.bottom
        focus: true
        height: row.chart.height
        width: parent.width

        ViewItem {
            anchors.fill: parent
            view: row.chart.view
        }
        TapHandler {
            id: hold

            longPressThreshold: 0.3

            onLongPressed: row.column = row.chart.columnAt(point.position.x, plot.width)
            onPressedChanged: if (!pressed)
                row.column = -1
        }
        HoverHandler {
            id: hover

            // HoverHandler reports its point with every frame, even if the mouse rests: compare it.
            property real at: -1

            acceptedDevices: PointerDevice.Mouse

            onAtChanged: row.column = row.chart.columnAt(at, plot.width)
            onHoveredChanged: at = -1
            onPointChanged: if (hovered)
                at = point.position.x
        }
        FocusRing {
            distance: -2
            visible: plot.visualFocus
        }
    }
    ChartBubble {
        id: bubble

        center: row.chart.columnCenter(row.column, plot.width)
        text: row.chart.columnText(row.column)
        width: Math.min(implicitWidth, row.width)
        y: Math.max(row.hidden, plot.y - height / 2 + Metrics.padding)
    }
}
