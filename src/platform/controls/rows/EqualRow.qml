import QtQuick

/*! Cells of one width, side by side. Where one needs more than it has, what all of them show is to
    become smaller by `shrink`, so that it looks alike. */
Row {
    id: row

    property alias model: cells.model
    /*! Makes a cell, whose implicit width is what it needs. */
    default property alias delegate: cells.delegate
    readonly property real cellWidth: width / Math.max(1, cells.count)
    /*! 0 … 1: 1 where all cells have room enough. */
    readonly property real shrink: {
        let widest = cellWidth;
        for (let i = 0; i < cells.count; ++i)
            widest = Math.max(widest, cells.itemAt(i).implicitWidth);
        return cellWidth / Math.max(1, widest);
    }

    Repeater {
        id: cells
    }
}
