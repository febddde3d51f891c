import QtQuick
import QtQuick.Window
import Kovamo.Desktop
import Kovamo.Gallery

/// The gallery's window: a list of exhibits, and a word that changes the appearance.
Window {
    id: window

    width: 800
    height: 900
    visible: true
    title: "Gallery"
    color: SystemColors.groupedBackground

    Gallery {
        id: gallery
    }

    Text {
        id: heading

        x: 16
        y: 16
        text: window.title
        color: SystemColors.label
        font.pixelSize: 34
        font.weight: Font.Bold
    }

    Text {
        x: window.width - width - 16
        y: 16
        height: 44
        verticalAlignment: Text.AlignVCenter
        text: SystemColors.dark ? "Light" : "Dark"
        color: SystemColors.accent
        font.pixelSize: 17
        Accessible.role: Accessible.Button
        Accessible.name: text
        Accessible.onPressAction: gallery.toggleAppearance()

        TapHandler {
            onTapped: gallery.toggleAppearance()
        }
    }

    ListView {
        anchors.fill: parent
        anchors.topMargin: 72
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        bottomMargin: 16
        spacing: 16
        clip: true
        model: gallery.exhibits

        delegate: ExhibitCard {
            required property Exhibit modelData

            width: ListView.view.width
            exhibit: modelData
        }
    }
}
