import QtQuick
import Kovamo.Controls
import Kovamo.Dashboard
import Kovamo.Editing

/*! A row of the period's list, for looking only. Held, hovered for a while or pressed by Enter, it
    shows in a bubble what its amount is made of. */
Focusable {
    id: row

    required property transactionLine line
    required property bool hasDivider
    required property int index
    required property ContentState content
    /*! Where the bubble points; -1 for none. */
    property real at: -1
    readonly property real fromTop: y - (ListView.view?.contentY ?? 0)

    Accessible.name: line.sentence
    Accessible.role: Accessible.ListItem
    activeFocusOnTab: ListView.isCurrentItem || activeFocus
    focus: ListView.isCurrentItem
    implicitHeight: words.implicitHeight
    // Over the row above it.
    z: at >= 0 ? 1 : 0

    // A pooled delegate would stay in the accessibility tree.
    ListView.onPooled: {
        visible = false;
        at = -1;
    }
    ListView.onReused: visible = true

    onActivated: at = at < 0 ? width / 2 : -1
    onActiveFocusChanged: at = -1

    TransactionRow {
        id: words

        line: row.line
        width: row.width
    }
    Divider {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.leftMargin: Metrics.padding
        anchors.right: parent.right
        anchors.rightMargin: Metrics.padding
        visible: row.hasDivider
    }
    TapHandler {
        longPressThreshold: 0.3

        onLongPressed: row.at = point.position.x
        onPressedChanged: if (!pressed)
            row.at = -1
    }
    HoverHandler {
        id: hover

        acceptedDevices: PointerDevice.Mouse

        onHoveredChanged: {
            row.at = -1;
            rest.running = hovered;
        }
    }
    Timer {
        id: rest

        interval: 500

        onTriggered: row.at = hover.point.position.x
    }
    FocusRing {
        distance: -2
        visible: row.visualFocus
    }
    ChartBubble {
        center: row.at
        text: row.at < 0 ? "" : row.content.rowComposition(row.index)
        width: Math.min(implicitWidth, row.width)
        // Above the row, under it where that is out of sight.
        y: row.fromTop < height ? row.height - Metrics.step : Metrics.step - height
    }
}
