pragma Singleton
import QtQuick

/*! How things move, and whether they do: every animation takes its duration from here. */
QtObject {
    id: motion

    /*! True where the user asked the desktop for reduced motion: things change at once. */
    property bool reduced: false

    /*! `milliseconds`, or 0 with reduced motion. */
    function duration(milliseconds: int): int {
        return motion.reduced ? 0 : milliseconds;
    }
}
