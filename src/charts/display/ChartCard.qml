import QtQuick
import Kovamo.Charts
import Kovamo.Desktop
import Kovamo.Views

/// A display chart on a card: its title, its plot, its legend, and a magnifier over the plot that
/// follows the finger and reads out the value nearest to it.
Item {
    id: card

    required property displayChart chart
    property real plotHeight: 180

    implicitHeight: content.implicitHeight
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

                property magnifiedReading reading: card.chart.magnified(Qt.point(mouseX, mouseY), Qt.size(plot.width, plot.height))

                anchors.fill: parent
                preventStealing: true
            }

            ChartMagnifier {
                reading: finger.reading
                visible: finger.pressed && finger.reading.text !== ""
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
}
