import QtQuick
import Kovamo.Charts
import Kovamo.Controls
import Kovamo.Desktop
import Kovamo.Views

/// A display chart on a card: its title, its plot, its legend, and a magnifier over the plot that
/// follows the finger and reads out the value nearest to it. The arrow keys lead it from value to
/// value, Escape lets go of it.
Focusable {
    id: card

    required property displayChart chart
    property real plotHeight: 180
    /// The value that the keys have led to; -1 for none.
    property int readAt: -1
    readonly property magnifiedReading reading: finger.pressed ? card.chart.magnified(Qt.point(finger.mouseX, finger.mouseY), Qt.size(plot.width, plot.height)) : card.chart.magnifiedAt(card.readAt, Qt.size(plot.width, plot.height))

    /// Leads on to the next value, or back; from none, to the first or the last.
    function walk(by: int) {
        card.readAt = card.readAt < 0 && by < 0 ? card.chart.count - 1 : Math.max(0, Math.min(card.chart.count - 1, card.readAt + by));
    }

    implicitHeight: content.implicitHeight
    activeFocusOnTab: true
    Keys.onDownPressed: card.walk(1)
    Keys.onLeftPressed: card.walk(-1)
    Keys.onRightPressed: card.walk(1)
    Keys.onUpPressed: card.walk(-1)
    Keys.onEscapePressed: event => {
        event.accepted = card.readAt >= 0;
        card.readAt = -1;
    }
    onActiveFocusChanged: card.readAt = -1
    onChartChanged: card.readAt = -1

    Accessible.role: Accessible.Chart
    Accessible.name: card.chart.title

    Column {
        id: content

        width: card.width
        spacing: 12

        Text {
            width: parent.width
            text: card.chart.title
            textFormat: Text.PlainText
            elide: Text.ElideRight
            color: SystemColors.label
            font.pixelSize: 17
            font.weight: Font.DemiBold
        }

        ViewItem {
            id: plot

            width: parent.width
            height: card.plotHeight
            view: card.chart.plot

            MouseArea {
                id: finger

                anchors.fill: parent
                preventStealing: true

                onPressed: card.forceActiveFocus(Qt.MouseFocusReason)
            }

            ChartMagnifier {
                reading: card.reading
                visible: card.reading.text !== ""
            }

            Announcement {
                anchors.fill: parent
                text: card.reading.text || " "
                Accessible.role: Accessible.Notification
                Accessible.name: text
            }
        }

        Flow {
            width: parent.width
            spacing: 16

            Repeater {
                model: card.chart.legend

                Row {
                    id: entry

                    required property legendEntry modelData

                    spacing: 6

                    ViewItem {
                        anchors.verticalCenter: parent.verticalCenter
                        width: 10
                        height: 10
                        view: entry.modelData.swatch
                    }

                    Text {
                        text: entry.modelData.label
                        textFormat: Text.PlainText
                        color: SystemColors.secondaryLabel
                        font.pixelSize: 13
                    }
                }
            }
        }
    }

    FocusRing {
        distance: 6
        visible: card.visualFocus
    }
}
