pragma ComponentBehavior: Bound
import QtQuick

/*! One place of a rolling number: a digit, or any other character, which just shows. */
Item {
    id: place

    required property string character
    required property list<string> digits
    required property font font
    required property color color
    /*! True lets a change roll. */
    required property bool rolls
    readonly property int digit: digits.indexOf(character)
    /*! The digit in sight, between two of them while it rolls. */
    property real shown: Math.max(0, digit)

    clip: rolling.running
    height: plain.implicitHeight
    visible: character !== ""
    width: plain.implicitWidth

    Behavior on shown {
        enabled: place.rolls

        NumberAnimation {
            id: rolling

            duration: Motion.duration(250)
            easing.type: Easing.InOutQuad
        }
    }

    PlainText {
        id: plain

        Accessible.ignored: true
        color: place.color
        elide: Text.ElideNone
        font: place.font
        text: place.character
        visible: !column.active
    }
    Loader {
        id: column

        active: rolling.running && place.digit >= 0
        y: -place.shown * place.height

        sourceComponent: Column {
            Repeater {
                model: place.digits

                PlainText {
                    required property string modelData

                    Accessible.ignored: true
                    color: place.color
                    elide: Text.ElideNone
                    font: place.font
                    text: modelData
                }
            }
        }
    }
}
