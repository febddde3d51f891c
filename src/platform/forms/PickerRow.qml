import QtQuick

/*! A row with a segmented control, and nothing beside it. */
FormRow {
    id: row

    property alias labels: control.labels
    property alias selected: control.selected

    /*! The user chose `label`. */
    signal picked(string label)

    contentHeight: control.trackHeight

    SegmentedControl {
        id: control

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter

        onPicked: label => row.picked(label)
    }
}
