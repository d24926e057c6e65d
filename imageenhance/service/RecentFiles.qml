import QtQuick
import TQmlUtils
import imageenhance

// The files opened last, most recent first.
QtObject {
    id: _top

    required property MainSettings settings
    required property OSUtils osUtils
    required property bool pluginMode

    readonly property int limit: 10
    readonly property list<string> list: settings.recentFiles ?? []

    function opened(images: list<string>): void {
        if (_top.pluginMode)
            return;
        const fresh = Array.from(images).slice(-_top.limit).reverse();
        _top.settings.recentFiles = [...new Set(fresh.concat(Array.from(list)))].slice(0, _top.limit);
    }

    // A file that can't be read would only fail again.
    function forget(image: string): void {
        _private.keep(Array.from(_top.list).filter(path => path !== image));
    }

    function clean(): void {
        _private.keep(Array.from(_top.list).filter(path => _top.osUtils.fileExists(path)));
    }

    function clear(): void {
        _top.settings.recentFiles = [];
    }

    readonly property QtObject _private: QtObject {
        id: _private

        function keep(some: list<string>): void {
            if (some.length !== _top.list.length)
                _top.settings.recentFiles = Array.from(some);
        }
    }
}
