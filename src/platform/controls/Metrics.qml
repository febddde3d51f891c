pragma Singleton
import QtQuick

/*! The distances of every screen, in points. */
QtObject {
    // Before what is made of it: Qt gives it its font in this order, and would load another for it first.
    readonly property FontMetrics body: FontMetrics {
        font: TextStyles.body
    }

    readonly property int step: 4
    readonly property int padding: 16
    /*! The least width and height of what a finger is to hit. */
    readonly property int target: 44
    /*! The least width of a month's seven days side by side. */
    readonly property int weekWidth: 7 * target
    /*! The least height of a row and of what is pressed: a target's, more with large text. */
    readonly property int rowHeight: Math.max(target, Math.ceil(body.height + 5 * step))
    readonly property int cardRadius: 10

    /*! The side of a bar's symbol, which grows with the text beside it. */
    readonly property int symbolSize: Math.max(22, Math.round(0.9 * body.height))

    /*! The widest that a column of text and controls gets, however wide the window. */
    readonly property int readableWidth: 620

    /*! One device pixel. */
    readonly property real hairline: 1 / Screen.devicePixelRatio
}
