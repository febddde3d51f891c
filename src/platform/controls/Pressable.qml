import QtQuick
import QtQuick.Templates as T

/*! What every button shares: it can be pressed by finger, mouse, Space and Enter, and says so. */
T.AbstractButton {
    id: pressable

    /*! What the button does, where its name alone does not tell. */
    property string description

    Accessible.description: description
    Accessible.name: text
    Accessible.role: Accessible.Button
    Keys.onEnterPressed: pressable.clicked()
    Keys.onReturnPressed: pressable.clicked()
    focusPolicy: Qt.StrongFocus
    implicitHeight: Math.max(Metrics.rowHeight, implicitContentHeight + topPadding + bottomPadding)
    implicitWidth: Math.max(Metrics.rowHeight, implicitContentWidth + leftPadding + rightPadding)
    opacity: pressed ? 0.35 : 1

    Accessible.onPressAction: pressable.clicked()

    Behavior on opacity  {
        enabled: !pressable.pressed

        NumberAnimation {
            duration: Motion.duration(200)
        }
    }
}
