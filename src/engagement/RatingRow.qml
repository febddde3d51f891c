pragma ComponentBehavior: Bound
import QtQuick
import Kovamo.Controls
import Kovamo.Engagement
import Kovamo.Foundation

/*! Five stars to choose from. */
Row {
    id: stars

    /*! How many stars have been given; 0 while the user chooses. */
    required property int given
    /*! The number of the star that is pointed at, up to which they light up; 0 for none. */
    property int pointedAt: 0

    /*! The user chose a number of stars. */
    signal chosen(int stars)

    Repeater {
        model: 5

        delegate: Pressable {
            id: star

            readonly property bool candidate: hovered || visualFocus || pressed
            required property int index

            hoverEnabled: true
            implicitHeight: implicitWidth
            // Five of them fit, however large the text beside them is.
            implicitWidth: 44
            opacity: 1
            padding: 8
            text: index === 0 ? "1 star" : "%1 stars".arg(index + 1)

            contentItem: RatingStar {
                color: SystemColors.accent
                filled: star.index < Math.max(stars.given, stars.pointedAt)
            }

            Keys.onLeftPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
            Keys.onRightPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            // The star that was left says so after the next has said that it is pointed at.
            onCandidateChanged: if (candidate || stars.pointedAt === index + 1)
                stars.pointedAt = candidate ? index + 1 : 0
            onClicked: stars.chosen(index + 1)
        }
    }
}
