import QtQuick

/*! Makes what does not show at first: after the window's first frame and beside the user's work, or
    at once when it is wanted. Until then not even its file is read, nor what that imports. */
Loader {
    id: loader

    /*! The file of what is made, and the values of its required properties. */
    required property url file
    required property var properties
    /*! Whether it is to be there now. */
    property bool wanted: false

    /*! Whether its loading has begun. */
    property bool begun: false

    function load() {
        begun = true;
        // An asynchronous load cannot be turned into a synchronous one: clear it and start again.
        source = "";
        asynchronous = !wanted;
        setSource(file, properties);
    }

    onWantedChanged: if (wanted && !item)
        load()

    Connections {
        enabled: !loader.begun
        target: loader.Window.window

        function onFrameSwapped() {
            loader.load();
        }
    }
}
