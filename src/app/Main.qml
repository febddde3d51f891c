import QtQuick
import Kovamo.App
import Kovamo.Controls
import Kovamo.Dashboard
import Kovamo.Engagement
import Kovamo.Foundation

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
        anchors.fill: parent
        focus: true
        sourceComponent: window.root.onboardingFinished ? mainScreen : onboarding
    }
    // The toolkit's Loader does not make bound components.
    // qmllint disable unqualified
    Component {
        id: onboarding

        OnboardingView {
            onboarding: window.root.onboarding
        }
    }
    Component {
        id: mainScreen

        ContentView {
            content: window.root.content
            digits: window.root.digits
        }
    }
    Component {
        id: reviewPrompt

        ReviewPrompt {
            sheetPresented: window.root.content.showAddTransaction || window.root.content.showTransactions
        }
    }
    // qmllint enable unqualified
    // What does not show at first is made after the first frame.
    Connections {
        id: firstFrame

        function onFrameSwapped() {
            firstFrame.enabled = false;
        }

        target: window
    }
    Loader {
        active: !firstFrame.enabled
        asynchronous: true
        sourceComponent: reviewPrompt
    }
}
