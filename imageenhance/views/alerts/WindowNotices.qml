import QtQuick
import imageenhance

// What went wrong outside the picture: files that can't be read, opened or shown.
Item {
    id: _top

    required property var osUtils // OSUtils
    required property var imageUtils // TImageUtils

    readonly property bool anyOpen: _notice.visible

    signal done

    function cannotRead(path: string, error: string): void {
        _notice.show(qsTr("Cannot open file: ") + path, error);
    }

    function invalidImages(): void {
        _notice.show(qsTr("Could not open one or more images due to unsupported file types."));
    }

    Connections {
        target: _top.osUtils

        function onFileMissing(path: string): void {
            _notice.show(qsTr("Cannot show %1 because it is missing.").arg(_top.imageUtils.getFilename(path)), qsTr("Previous location: ") + path);
        }

        function onShowFileError(path: string): void {
            _notice.show(qsTr("An error occurred when trying to show the file."), qsTr("File location: ") + path);
        }
    }

    NoticeDialog {
        id: _notice
        objectName: "noticePrompt"
        onClosed: _top.done()
    }
}
