import QtQuick
import QtQuick.Dialogs
import TImageUtils

// Where images are chosen.
FileDialog {
    id: _top

    required property TImageUtils imageUtils

    signal chosen(var paths)

    // A choice made before is forgotten.
    function show(): void {
        currentFiles = [];
        open();
    }

    title: qsTr("Open images...")
    fileMode: FileDialog.OpenFiles
    nameFilters: [`Image file (${imageUtils.supportedFileFormats().map(extension => "*." + extension).join(" ")})`]
    onAccepted: chosen(selectedFiles.map(url => imageUtils.urlToString(url)))
}
