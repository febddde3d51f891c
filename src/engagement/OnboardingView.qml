pragma ComponentBehavior: Bound
import QtQuick
import Kovamo.Controls
import Kovamo.Engagement
import Kovamo.Desktop

/*! The onboarding: pages to swipe, and on them a row of dots above one large button. */
FocusScope {
    id: view

    required property OnboardingState onboarding

    focus: true

    Rectangle {
        anchors.fill: parent
        color: SystemColors.background
    }
    ListView {
        id: pages

        anchors.fill: parent
        boundsBehavior: Flickable.StopAtBounds
        currentIndex: view.onboarding.currentPage
        highlightMoveDuration: Motion.duration(300)
        // A resize scrolls the ListView too; that must not change currentPage.
        highlightRangeMode: moving ? ListView.StrictlyEnforceRange : ListView.ApplyRange
        model: view.onboarding.totalPages
        objectName: "pages"
        orientation: ListView.Horizontal
        snapMode: ListView.SnapOneItem

        delegate: OnboardingPage {
            required property int index

            description: view.onboarding.pageDescription(index)
            height: pages.height
            imageName: view.onboarding.pageImageName(index)
            // The pictures are drawn for the button of a text that is not enlarged.
            lift: Math.max(0, button.height - 56)
            width: pages.width
        }

        onCurrentIndexChanged: view.onboarding.currentPage = currentIndex

        // After a resize the pages have new positions: scroll to the current one.
        onWidthChanged: settling.restart()

        Timer {
            id: settling

            interval: 0

            onTriggered: {
                pages.forceLayout();
                pages.positionViewAtIndex(pages.currentIndex, ListView.Beginning);
            }
        }
    }
    Row {
        Accessible.name: view.onboarding.position
        Accessible.role: Accessible.StaticText
        anchors.bottom: button.top
        anchors.bottomMargin: 5
        anchors.horizontalCenter: parent.horizontalCenter

        Repeater {
            model: view.onboarding.totalPages

            delegate: Item {
                id: dot

                required property int index

                implicitHeight: 16
                implicitWidth: 16

                Rectangle {
                    anchors.centerIn: parent
                    color: dot.index === view.onboarding.currentPage ? SystemColors.blue : SystemColors.gray
                    height: 10
                    radius: 5
                    width: 10
                }
            }
        }
    }
    Pressable {
        id: button
        Keys.forwardTo: [pages]
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.margins: 40
        anchors.right: parent.right
        focus: true
        implicitHeight: Math.max(Metrics.rowHeight, caption.implicitHeight + 2 * Metrics.padding)
        opacity: 1
        ring.distance: 2
        ring.radius: 22
        text: view.onboarding.caption

        onClicked: view.onboarding.next()

        GradientPanel {
            anchors.fill: parent
            anchors.margins: -shadowExtent
            leftColor: button.LayoutMirroring.enabled ? SystemColors.purple : SystemColors.blue
            rightColor: button.LayoutMirroring.enabled ? SystemColors.blue : SystemColors.purple
        }
        PlainText {
            id: caption

            Accessible.ignored: true
            anchors.centerIn: parent
            color: SystemColors.white
            font: TextStyles.headline
            opacity: button.pressed ? 0.6 : 1
            text: button.text
        }
    }
}
