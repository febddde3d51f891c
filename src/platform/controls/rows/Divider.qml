import QtQuick
import Kovamo.Desktop

/*! A hairline between two things: across a column, or down a row when `vertical`. */
Rectangle {
    property bool vertical: false

    color: SystemColors.separator
    implicitHeight: Metrics.hairline
    implicitWidth: Metrics.hairline
}
