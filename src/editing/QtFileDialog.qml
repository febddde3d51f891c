import QtQuick
import QtQuick.Dialogs
import Kovamo.Desktop

/*! Qt's own file dialog, where the desktop offers none: it answers for `chooser`. */
FileDialog {
    id: dialog

    required property FileChooser chooser
    required property bool saves
    required property string suggestedName

    acceptLabel: saves ? qsTr("Save") : qsTr("Open")
    defaultSuffix: "csv"
    fileMode: saves ? FileDialog.SaveFile : FileDialog.OpenFile
    nameFilters: saves ? ["CSV, JSON (*.csv *.json)"] : ["CSV, JSON (*.csv *.json *.jsonl *.tsv *.txt)", qsTr("All files") + " (*)"]

    Component.onCompleted: {
        if (saves)
            selectedFile = currentFolder + "/" + encodeURIComponent(suggestedName);
        open();
    }
    onAccepted: chooser.choose(dialog.selectedFile, dialog.saves)
}
