import QtQuick
import QtQuick.Templates as T
import Kovamo.App
import Kovamo.Controls
import Kovamo.Desktop
import Kovamo.Engagement

/*! The offer to go back to a copy: a card over the main screen, which stays as it is. */
T.Popup {
    id: card

    required property WayBack wayBack

    anchors.centerIn: T.Overlay.overlay
    bottomPadding: 4
    closePolicy: T.Popup.CloseOnEscape
    focus: true
    height: column.implicitHeight + topPadding + bottomPadding
    horizontalPadding: Metrics.padding
    topPadding: 20
    visible: wayBack.offered
    width: Math.min(320, (T.Overlay.overlay?.width ?? 390) - 2 * Metrics.padding)

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

    onClosed: wayBack.keepEmpty()

    Column {
        id: column

        Accessible.description: message.text
        Accessible.name: title.text
        Accessible.role: Accessible.Dialog
        spacing: 8
        width: card.availableWidth

        PlainText {
            id: title

            font: TextStyles.headline
            horizontalAlignment: Text.AlignHCenter
            text: "A New Store"
            width: parent.width
        }
        PlainText {
            id: message

            horizontalAlignment: Text.AlignHCenter
            maximumLineCount: 8
            text: card.wayBack.message
            width: parent.width
            wrapMode: Text.Wrap
        }
        Divider {
            width: parent.width
        }
        CardButton {
            focus: true
            text: card.wayBack.action
            width: parent.width

            onClicked: card.wayBack.goBack()
        }
        Divider {
            width: parent.width
        }
        CardButton {
            text: "Keep Empty"
            width: parent.width

            onClicked: card.wayBack.keepEmpty()
        }
    }
}
