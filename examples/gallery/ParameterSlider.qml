import QtQuick
import QtQuick.Templates as T
import Kovamo.Desktop
import Kovamo.Gallery

/// A slider with the name and the value of what it sets.
Item {
    id: row

    required property ExhibitParameter parameter

    implicitHeight: 44

    Text {
        text: row.parameter.name
        textFormat: Text.PlainText
        color: SystemColors.secondaryLabel
        font.pixelSize: 13
    }

    Text {
        anchors.right: parent.right
        text: +row.parameter.value.toFixed(2)
        color: SystemColors.label
        font.pixelSize: 13
    }

    T.Slider {
        id: slider

        y: 16
        width: row.width
        height: 28
        from: row.parameter.from
        to: row.parameter.to
        stepSize: row.parameter.stepSize
        snapMode: T.Slider.SnapAlways
        value: row.parameter.value
        onMoved: row.parameter.value = slider.value
        Accessible.name: row.parameter.name

        background: Rectangle {
            y: 12
            width: slider.width
            height: 4
            radius: 2
            color: SystemColors.separator

            Rectangle {
                width: slider.visualPosition * parent.width
                height: 4
                radius: 2
                color: SystemColors.accent
            }
        }

        handle: Rectangle {
            x: slider.visualPosition * (slider.width - width)
            y: 4
            width: 20
            height: 20
            radius: 10
            color: SystemColors.cell
            border.width: slider.visualFocus ? 2 : 1
            border.color: slider.visualFocus ? SystemColors.accent : SystemColors.gray
        }
    }
}
