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
    readonly property bool rolling: roll.running && digit >= 0
    /*! The digit in sight, between two of them while it rolls. */
    property real shown: Math.max(0, digit)

    clip: rolling
    height: plain.implicitHeight
    visible: character !== ""
    width: plain.implicitWidth

    Behavior on shown  {
        enabled: place.rolls && !Motion.reduced

        NumberAnimation {
            id: roll

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
        visible: !place.rolling
    }
    PlainText {
        Accessible.ignored: true
        color: place.color
        elide: Text.ElideNone
        font: place.font
        lineHeight: place.height
        lineHeightMode: Text.FixedHeight
        maximumLineCount: 10
        text: place.rolling ? Array.from(place.digits).join("\n") : ""
        y: -place.shown * place.height
    }
}
