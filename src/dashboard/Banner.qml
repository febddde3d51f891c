import QtQuick
import Kovamo.Controls
import Kovamo.Dashboard
import Kovamo.Desktop
import Kovamo.Views

/*! The card with the verdict and the balance. */
Item {
    id: card

    required property banner balance

    implicitHeight: balance.isShown ? Math.max(100, words.implicitHeight + Metrics.step * 4) + Metrics.padding * 2 : 0
    visible: balance.isShown

    ViewItem {
        id: ground

        anchors.fill: parent
        anchors.margins: Metrics.padding
        view: card.balance.card
    }
    Announcement {
        Accessible.name: text
        Accessible.role: Accessible.Notification
        anchors.fill: ground
        // Announcement ignores an empty text. A blank makes it announce a verdict that returns.
        text: card.balance.isShown ? card.balance.sentence : " "
    }
    Column {
        id: words

        anchors.centerIn: parent
        spacing: Metrics.step * 2
        width: ground.width - Metrics.padding * 2

        PlainText {
            Accessible.ignored: true
            anchors.horizontalCenter: parent.horizontalCenter
            color: SystemColors.white
            font: TextStyles.headline
            fontSizeMode: Text.HorizontalFit
            // White on yellow is hard to read without an edge.
            style: Text.Raised
            styleColor: SystemColors.dimming
            text: card.balance.infoText
            // A text with a width is laid out several times, and its emoji decoded each time.
            width: implicitWidth > parent.width ? parent.width : undefined
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            scale: Math.min(1, words.width / Math.max(1, width))

            BannerText {
                words: card.balance.kovamoText
            }
            BannerText {
                words: card.balance.leadingSymbol
            }
            RollingNumber {
                Accessible.ignored: true
                color: SystemColors.white
                duration: Motion.duration(250)
                font: TextStyles.bold(TextStyles.largeTitle)
                text: card.balance.numberText
            }
            BannerText {
                words: card.balance.trailingSymbol
            }
        }
    }

    component BannerText: EmphasizedText {
        required property string words

        Accessible.ignored: true
        color: SystemColors.white
        markup: "**" + words + "**"
        textStyle: TextStyles.largeTitle
    }
}
