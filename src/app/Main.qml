import QtQuick
import Kovamo.App
import Kovamo.Controls
import Kovamo.Dashboard
import Kovamo.Desktop

/*! The app's one window. */
Window {
    id: window

    required property RootState root
    /*! Whether things change at once instead of moving. */
    property bool reducedMotion: false
    /*! How much larger than usual all text is. */
    property real textScale: 1

    LayoutMirroring.childrenInherit: true
    LayoutMirroring.enabled: root.mirrored
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
    Binding {
        property: "scale"
        target: TextStyles
        value: window.textScale
    }
    // A sheet or menu that is on its way keeps the window's shortcuts to itself.
    Shortcut {
        context: Qt.ApplicationShortcut
        sequence: "Ctrl+Q"

        onActivated: Qt.quit()
    }
    Loader {
        active: window.root.onboardingFinished
        focus: active

        // The toolkit's Loader does not make bound components.
        // qmllint disable unqualified
        sourceComponent: ContentView {
            content: window.root.content
            height: window.height
            width: window.width
        }
        // qmllint enable unqualified
    }
    // Most starts do without the onboarding: its file is read where it shows.
    Loader {
        active: !window.root.onboardingFinished
        anchors.fill: parent
        focus: active

        Component.onCompleted: setSource("../Engagement/OnboardingView.qml", {
                "onboarding": window.root.onboarding
            })
    }
    LateLoader {
        file: Qt.resolvedUrl("RatingPrompt.qml")
        properties: ({
                "root": window.root
            })
    }
}
