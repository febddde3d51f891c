pragma ComponentBehavior: Bound
import QtQuick

/*! A number whose digits roll to their new value: the column of the ten digits scrolls by. */
Item {
    id: number

    /*! The number as it is read: "1,234". */
    property string text
    property font font: TextStyles.largeTitle
    property color color
    /*! The ten digits from 0 to 9 as `text` writes them. */
    property list<string> digits: ["0", "1", "2", "3", "4", "5", "6", "7", "8", "9"]
    readonly property var characters: Array.from(text)
    property bool settled: false

    Accessible.name: text
    Accessible.role: Accessible.StaticText
    LayoutMirroring.childrenInherit: true
    LayoutMirroring.enabled: false
    implicitHeight: sizer.height
    implicitWidth: row.width

    // What is first shown stands; only what changes rolls.
    Component.onCompleted: settled = true

    FontMetrics {
        id: sizer

        font: number.font
    }
    Row {
        id: row

        layoutDirection: Qt.RightToLeft

        // Places count from the right, so that the ones stay the ones when a digit is added. More
        // than twelve, which few accounts need, are made anew when their number changes.
        Repeater {
            model: Math.max(12, number.characters.length)

            RollingDigit {
                required property int index

                character: number.characters[number.characters.length - 1 - index] ?? ""
                color: number.color
                digits: number.digits
                font: number.font
                rolls: number.settled
            }
        }
    }
}
