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

    clip: true

    Image {
        Accessible.name: page.description
        Accessible.role: Accessible.Graphic
        anchors.fill: parent
        fillMode: Image.PreserveAspectCrop
        source: ImageAssets.url(page.imageName, SystemColors.dark, page.wide)
        // Drawn at the size it is shown in, so that it is crisp.
        sourceSize.height: page.height
        sourceSize.width: page.width
    }
}
