pragma ComponentBehavior: Bound
import QtQuick
import Kovamo.Controls
import Kovamo.Engagement
import Kovamo.Desktop

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

            readonly property bool candidate: hover.hovered || visualFocus || pressed
            required property int index

            implicitHeight: implicitWidth
            // Five stars must fit the card, whatever the text size.
            implicitWidth: 44
            opacity: 1
            text: index === 0 ? "1 star" : "%1 stars".arg(index + 1)

            Keys.onLeftPressed: star.nextItemInFocusChain(LayoutMirroring.enabled).forceActiveFocus(Qt.TabFocusReason)
            Keys.onRightPressed: star.nextItemInFocusChain(!LayoutMirroring.enabled).forceActiveFocus(Qt.TabFocusReason)
            // HoverHandler tells the star that was entered before the one that was left.
            onCandidateChanged: if (candidate || stars.pointedAt === index + 1)
                stars.pointedAt = candidate ? index + 1 : 0
            onClicked: stars.chosen(index + 1)

            RatingStar {
                anchors.fill: parent
                anchors.margins: 8
                color: SystemColors.accent
                filled: star.index < Math.max(stars.given, stars.pointedAt)
            }
            HoverHandler {
                id: hover
            }
        }
    }
}
