pragma ComponentBehavior: Bound
import QtQuick
import Kovamo.Controls
import Kovamo.Engagement
import Kovamo.Foundation

/*! Five stars to choose from. */
Row {
    id: stars

    /*! How many are lit: those up to the star that is pointed at. */
    property int count: 0

    /*! The user chose a number of stars. */
    signal chosen(int stars)

    Repeater {
        model: 5

        delegate: Pressable {
            id: star

            required property int index
            readonly property bool pointedAt: hovered || visualFocus || pressed

            KeyNavigation.left: nextItemInFocusChain(false)
            KeyNavigation.right: nextItemInFocusChain(true)
            hoverEnabled: true
            opacity: 1
            padding: 8
            text: index === 0 ? "1 star" : "%1 stars".arg(index + 1)

            contentItem: RatingStar {
                color: SystemColors.accent
                filled: star.index < stars.count
            }

            onClicked: stars.chosen(index + 1)
            onPointedAtChanged: stars.count = pointedAt ? index + 1 : 0
        }
    }
}
