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
    minimumHeight: 120
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
    // Application-wide: a window shortcut does not work while a popup is open.
    Shortcut {
        context: Qt.ApplicationShortcut
        sequence: "Ctrl+Q"

        onActivated: Qt.quit()
    }
    Loader {
        active: window.root.onboardingFinished
        focus: active

        // Loader cannot create components under pragma ComponentBehavior: Bound in Qt 6.4.
        // qmllint disable unqualified
        sourceComponent: ContentView {
            content: window.root.content
            height: window.height
            width: window.width
        }
        // qmllint enable unqualified
    }
    // By file name, so that a start without the onboarding does not load its types.
    Loader {
        active: !window.root.onboardingFinished
        anchors.fill: parent
        focus: active

        Component.onCompleted: setSource("../Engagement/OnboardingView.qml", {
                "onboarding": window.root.onboarding
            })
    }
    Loader {
        active: window.root.onboardingFinished && window.root.wayBack !== null && window.root.wayBack.offered

        Component.onCompleted: setSource("WayBackCard.qml", {
                "wayBack": window.root.wayBack
            })
    }
    LateLoader {
        file: Qt.resolvedUrl("RatingPrompt.qml")
        properties: ({
                "root": window.root
            })
    }
}
