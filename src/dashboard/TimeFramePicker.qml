pragma ComponentBehavior: Bound
import QtQuick
import Kovamo.Controls
import Kovamo.Dashboard
import Kovamo.Desktop

/*! Three texts to choose the time frame by. */
Column {
    id: picker

    required property ContentState content

    Accessible.name: qsTr("Time frame")
    Accessible.role: Accessible.PageTabList

    Divider {
        width: parent.width
    }
    EqualRow {
        id: row

        model: picker.content.timeFrames
        width: parent.width

        Pressable {
            id: choice

            required property int index
            required property timeFrameChoice modelData
            readonly property bool chosen: modelData.value === picker.content.selectedTimeFrame

            Accessible.role: Accessible.PageTab
            Accessible.selectable: true
            Accessible.selected: chosen
            height: Math.max(50, caption.implicitHeight + Metrics.padding)
            implicitWidth: caption.implicitWidth + Metrics.step * 4
            opacity: 1
            text: caption.text
            width: row.cellWidth

            onClicked: picker.content.select(modelData.value)

            Shortcut {
                context: Qt.ApplicationShortcut
                enabled: picker.visible && !picker.content.isCovered
                sequence: choice.modelData.shortcut

                onActivated: choice.clicked()
            }
            Divider {
                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                height: 50
                vertical: true
                visible: choice.index > 0
            }
            EmphasizedText {
                id: caption

                Accessible.ignored: true
                anchors.centerIn: parent
                color: choice.chosen ? SystemColors.label : SystemColors.gray
                markup: choice.modelData.label
                opacity: choice.pressed ? 0.35 : 1
                scale: row.shrink
            }
        }
    }
}
