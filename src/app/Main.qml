import QtQuick
import Kovamo.Controls
import Kovamo.Dashboard
import Kovamo.Foundation

/*! The app's one window. */
Window {
    id: window

    required property ContentState content
    required property list<string> digits
    /*! Whether things change at once instead of moving. */
    property bool reducedMotion: false

    color: SystemColors.background
    height: 844
    minimumHeight: 480
    minimumWidth: 320
    title: qsTr("Kovamo")
    visible: true
    width: 390

    Binding {
        property: "reduced"
        target: Motion
        value: window.reducedMotion
    }
    Shortcut {
        sequences: [StandardKey.Quit]

        onActivated: Qt.quit()
    }
    ContentView {
        anchors.fill: parent
        content: window.content
        digits: window.digits
        focus: true
    }
}
