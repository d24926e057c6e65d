import QtQuick
import imageenhance

// What went wrong outside the picture: files that can't be read, opened or shown, a volume that runs full.
Item {
    id: _top

    required property var osUtils // OSUtils
    required property var imageUtils // TImageUtils
    required property var toaster // Toaster

    readonly property bool anyOpen: _notice.visible
    readonly property int listedFiles: 8

    signal done

    // Files that fail while the notice stands join it: the picture after a damaged one may be damaged, too.
    function cannotRead(path: string, error: string): void {
        const failed = _private.failed.concat({
            path,
            error
        });
        if (failed.length === 1)
            _notice.show(qsTr("Cannot open file: ") + path, error);
        else
            _notice.show(qsTr("Cannot open %1 files.").arg(failed.length), _private.listed(failed.map(file => `${_top.imageUtils.getFilename(file.path)}: ${file.error}`)));
        _private.failed = failed;
    }

    function invalidImages(paths: var): void {
        const gone = paths.filter(path => !_top.osUtils.fileExists(path));
        const why = gone.length === paths.length ? qsTr("Could not open one or more images because they do not exist.") : qsTr("Could not open one or more images due to unsupported file types.");
        _notice.show(why, _private.listed(paths));
    }

    function lowSpace(volume: string, critical: bool): void {
        const threshold = critical ? "1GB" : "5GB";
        _top.toaster.queue({
            "title": critical ? qsTr("Critically Low Disk Space") : qsTr("Low Disk Space"),
            "message": qsTr("There is less than %1 of free space left on %2. Low disk space may cause sporadic model running or saving issues.").arg(threshold).arg(volume),
            "type": critical ? Toaster.Type.Error : Toaster.Type.Warn,
            "timeout": _top.toaster.timeoutNone,
            "showOnlyOnce": true
        });
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
        onClosed: {
            _private.failed = [];
            _top.done();
        }
    }

    QtObject {
        id: _private

        property var failed: [] // { path, error } of the files in the notice

        function listed(lines: var): string {
            const shown = lines.slice(0, _top.listedFiles);
            if (lines.length > shown.length)
                shown.push(qsTr("and %1 more").arg(lines.length - shown.length));
            return shown.join("\n");
        }
    }
}
