import QtQuick
import TImageUtils
import TQmlUtils
import imageenhance

// What went wrong outside the picture: files that can't be read, opened or shown, a volume that runs full.
Item {
    id: _top

    required property OSUtils osUtils
    required property TImageUtils imageUtils
    required property Toaster toaster
    required property DialogQueue queue

    readonly property int listedFiles: 8

    // Files that fail until the notice is closed join it: the picture after a damaged one may be damaged, too.
    function cannotRead(path: string, error: string): void {
        if (_private.failed.some(file => file.path === path && file.error === error))
            return;
        const failed = _private.failed.concat({
            path,
            error
        });
        _private.failed = failed;
        if (failed.length === 1)
            _private.notify("unreadable", qsTr("Cannot open file: ") + path, error);
        else
            _private.notify("unreadable", qsTr("Cannot open %1 files.").arg(failed.length), _private.listed(failed.map(file => `${_top.imageUtils.getFilename(file.path)}: ${file.error}`)));
    }

    function invalidImages(paths: list<string>): void {
        const unsupported = paths.filter(path => _top.osUtils.fileExists(path));
        for (const path of paths) {
            if (!unsupported.includes(path))
                cannotRead(path, qsTr("The file does not exist."));
        }
        if (unsupported.length === 0)
            return;
        _private.unsupported = [...new Set(_private.unsupported.concat(unsupported))];
        _private.notify("unsupported", qsTr("Could not open one or more images due to unsupported file types."), _private.listed(_private.unsupported));
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
            _private.notify("missing " + path, qsTr("Cannot show %1 because it is missing.").arg(_top.imageUtils.getFilename(path)), qsTr("Previous location: ") + path);
        }

        function onShowFileError(path: string): void {
            _private.notify("not shown " + path, qsTr("An error occurred when trying to show the file."), qsTr("File location: ") + path);
        }
    }

    Connections {
        target: _top.queue

        function onLeft(name: string): void {
            _private.forget(name);
        }
    }

    NoticeDialog {
        objectName: "noticePrompt"
        queue: _top.queue
        turn: _private.notices[_top.queue.current] ? _top.queue.current : ""
        messageText: _private.notices[turn]?.message ?? ""
        details: _private.notices[turn]?.details ?? ""
    }

    QtObject {
        id: _private

        property var notices: ({}) // name in the queue -> { message, details } of what is not read yet
        property var failed: [] // { path, error } of the files in the notice of unreadable ones
        property var unsupported: [] // paths in the notice of unsupported ones

        function notify(name: string, message: string, details: string): void {
            _private.notices = Object.assign({}, _private.notices, { [name]: { message, details } });
            _top.queue.ask(name);
        }

        function forget(name: string): void {
            const rest = Object.assign({}, _private.notices);
            delete rest[name];
            _private.notices = rest;
            if (name === "unreadable")
                _private.failed = [];
            else if (name === "unsupported")
                _private.unsupported = [];
        }

        function listed(lines: var): string {
            const shown = lines.slice(0, _top.listedFiles);
            if (lines.length > shown.length)
                shown.push(qsTr("and %1 more").arg(lines.length - shown.length));
            return shown.join("\n");
        }
    }
}
