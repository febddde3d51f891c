import QtQuick
import Kovamo.Controls
import Kovamo.Desktop

/*! A button of a bar: a system symbol in the accent colour, its text for those who listen. */
Pressable {
    id: button

    /*! The name of the system symbol. */
    required property string symbol

    SystemImage {
        anchors.centerIn: parent
        color: button.enabled ? SystemColors.accent : SystemColors.tertiaryLabel
        height: Metrics.symbolSize
        name: button.symbol
        width: Metrics.symbolSize
    }
}
