pragma Singleton
import QtQuick

/*! The distances of every screen, in points. */
QtObject {
    readonly property int step: 4
    readonly property int padding: 16
    readonly property int rowHeight: 44
    readonly property int cardRadius: 10

    /*! The widest that a column of text and controls gets, however wide the window. */
    readonly property int readableWidth: 620

    /*! One device pixel. */
    readonly property real hairline: 1 / Screen.devicePixelRatio
}
