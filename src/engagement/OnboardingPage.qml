import QtQuick
import Kovamo.Engagement
import Kovamo.Desktop

/*! One picture of the onboarding, filling its page: scaled up to its edges, the overflow cropped. */
Item {
    id: page

    /*! The words in the picture. */
    property string description
    required property string imageName
    /*! Whether a picture as high as it is wide would lose too much above and below. */
    readonly property bool wide: width > 1.4 * height

    /*! How much higher the button stands than the pictures leave room for. */
    required property real lift
    readonly property real lifted: wide ? lift : 0
    readonly property url picture: ImageAssets.url(imageName, SystemColors.dark, wide)

    clip: true

    Picture {
        Accessible.name: page.description
        Accessible.role: Accessible.Graphic
        height: page.height
        source: page.picture
        width: page.width
        y: -page.lifted
    }
    // Below a lifted picture its colours go on.
    Picture {
        height: page.height
        mirrorVertically: true
        source: page.picture
        visible: page.lifted > 0
        width: page.width
        y: page.height - page.lifted
    }

    component Picture: Image {
        fillMode: Image.PreserveAspectCrop
        // Drawn at the size it is shown in, so that it is crisp.
        sourceSize.height: height
        sourceSize.width: width
    }
}
