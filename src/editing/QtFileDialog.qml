import QtQuick
import QtQuick.Dialogs
import Kovamo.Desktop

/*! Qt's own file dialog, where the desktop offers none: it answers for `chooser`. */
FileDialog {
    id: dialog

    required property FileChooser chooser
    required property bool saves
    required property string suggestedName

    fileMode: saves ? FileDialog.SaveFile : FileDialog.OpenFile

    Component.onCompleted: {
        if (saves)
            selectedFile = currentFolder + "/" + encodeURIComponent(suggestedName);
        open();
    }
    onAccepted: chooser.choose(dialog.selectedFile, dialog.saves)
}
