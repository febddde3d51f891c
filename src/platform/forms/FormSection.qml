import QtQuick
import Kovamo.Controls
import Kovamo.Desktop

/*! A card of rows in a form, with a hairline between one visible row and the next. */
Rectangle {
    default property alias rows: column.data

    Accessible.role: Accessible.Grouping
    color: SystemColors.cell
    implicitHeight: column.height
    radius: Metrics.cardRadius
    width: parent ? parent.width : implicitWidth

    Column {
        id: column

        width: parent.width
    }
}
