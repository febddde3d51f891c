pragma Singleton
import QtQuick

/*! The type scale, in the system's own font. Sizes are points of the layout, however many of them
    the screen says that an inch has. */
QtObject {
    id: styles

    /*! How much larger than usual the user wants all text. */
    property real scale: 1
    /*! Whether text is so large that a line holds little of it. */
    readonly property bool isLarge: scale >= 1.5

    // Qt reads such a number when it compiles the file; in a call, it first lists all that Font has.
    readonly property int normalWeight: Font.Normal
    readonly property int demiBoldWeight: Font.DemiBold
    readonly property int boldWeight: Font.Bold

    readonly property font largeTitle: styles.style(34, normalWeight)
    readonly property font headline: styles.style(17, demiBoldWeight)
    readonly property font body: styles.style(17, normalWeight)
    readonly property font subheadline: styles.style(15, normalWeight)
    readonly property font footnote: styles.style(13, normalWeight)
    /*! The emoji to choose from. */
    readonly property font emoji: styles.style(28, normalWeight)

    /*! The system's font at `points` layout points. */
    function style(points: real, weight: int): font {
        return Qt.font({
                "pixelSize": Math.round(points * styles.scale),
                "weight": weight
            });
    }

    /*! `style` in bold. */
    function bold(style: font): font {
        return Qt.font({
                "pixelSize": style.pixelSize,
                "weight": styles.boldWeight
            });
    }
}
