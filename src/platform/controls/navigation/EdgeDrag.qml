import QtQuick

/*! A strip along the leading edge, from which a page is dragged aside. */
Item {
    id: edge

    /*! 1 where the drag goes to the right, -1 where it goes to the left. */
    required property int direction
    /*! How far it went, in points; never out over the edge. The owner sets it back. */
    property real distance: 0

    /*! The finger or mouse was lifted, at `velocity` points a second away from the edge. */
    signal released(real velocity)

    width: 20

    DragHandler {
        id: drag

        target: null
        yAxis.enabled: false

        onActiveChanged: if (!active)
            edge.released(edge.direction * centroid.velocity.x)
        onActiveTranslationChanged: if (active)
            edge.distance = Math.max(0, edge.direction * activeTranslation.x)
    }
}
