import QtQuick
import QtQuick.Templates as T
import Kovamo.Controls
import Kovamo.Engagement
import Kovamo.Desktop

/*! The platform's rating prompt: a small card in the middle of its window, beside which the app
    goes on. The shell keeps one in its window and says whether a sheet is up. */
T.Popup {
    id: prompt

    required property bool sheetPresented
    property Item focusedBefore: null

    anchors.centerIn: T.Overlay.overlay
    bottomPadding: 4
    closePolicy: T.Popup.CloseOnEscape
    focus: true
    height: column.implicitHeight + topPadding + bottomPadding
    horizontalPadding: Metrics.padding
    topPadding: 20
    visible: StoreReviewController.scene !== null
    width: 270

    background: Item {
        GradientPanel {
            anchors.fill: parent
            anchors.margins: -shadowExtent
            cornerRadius: 14
            leftColor: SystemColors.cell
            rightColor: SystemColors.cell
            shadowExtent: 24
        }
    }
    enter: Transition {
        NumberAnimation {
            duration: Motion.duration(200)
            from: 0
            property: "opacity"
            to: 1
        }
    }

    onAboutToShow: focusedBefore = parent.Window.activeFocusItem
    onClosed: {
        StoreReviewController.dismiss();
        if (!sheetPresented && focusedBefore !== null)
            focusedBefore.forceActiveFocus(Qt.PopupFocusReason);
    }

    Column {
        id: column
        Accessible.name: title.text
        Accessible.role: Accessible.Dialog
        spacing: 8
        width: prompt.availableWidth

        Image {
            Accessible.ignored: true
            anchors.horizontalCenter: parent.horizontalCenter
            source: ImageAssets.url("appicon", false)
            sourceSize.height: 64
            sourceSize.width: 64
        }
        PlainText {
            id: title
            font: TextStyles.headline
            fontSizeMode: Text.HorizontalFit
            horizontalAlignment: Text.AlignHCenter
            text: StoreReviewController.stars > 0 ? "Thank you!" : "Enjoying Kovamo?"
            width: parent.width
        }
        RatingRow {
            anchors.horizontalCenter: parent.horizontalCenter
            enabled: given === 0
            given: StoreReviewController.stars

            onChosen: stars => StoreReviewController.rate(stars)
        }
        Divider {
            width: parent.width
        }
        Pressable {
            id: notNow
            focus: true
            text: StoreReviewController.stars > 0 ? "Done" : "Not Now"
            width: parent.width

            onClicked: StoreReviewController.dismiss()

            PlainText {
                Accessible.ignored: true
                anchors.centerIn: parent
                color: SystemColors.accent
                text: notNow.text
            }
        }
    }
    Binding {
        property: "sheetPresented"
        target: StoreReviewController
        value: prompt.sheetPresented
    }
}
