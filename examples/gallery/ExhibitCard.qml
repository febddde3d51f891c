import QtQuick
import Kovamo.Charts
import Kovamo.Desktop
import Kovamo.Gallery
import Kovamo.Views

/// One exhibit on a card: its name, what it looks like, and a slider for each thing it takes.
Rectangle {
    id: card

    required property Exhibit exhibit

    implicitHeight: content.implicitHeight + 32
    radius: 10
    color: SystemColors.cell

    Column {
        id: content

        x: 16
        y: 16
        width: card.width - 32
        spacing: 12

        Text {
            text: card.exhibit.title
            textFormat: Text.PlainText
            color: SystemColors.label
            font.pixelSize: 17
            font.weight: Font.DemiBold
        }

        Row {
            width: parent.width
            spacing: 24

            ViewItem {
                visible: !card.exhibit.closeUp
                width: 390
                height: 200
                view: card.exhibit.view
            }

            ChartCard {
                visible: card.exhibit.closeUp
                width: 390
                chart: card.exhibit.chart
            }

            Column {
                width: parent.width - 390 - parent.spacing
                spacing: 8

                Repeater {
                    model: card.exhibit.parameters

                    ParameterSlider {
                        required property ExhibitParameter modelData

                        width: parent.width
                        parameter: modelData
                    }
                }
            }
        }
    }
}
