import QtQuick

// The files opened last, most recent first.
QtObject {
    id: _top

    required property var settings // MainSettings
    required property var osUtils
    required property bool pluginMode

    readonly property int limit: 10
    readonly property var list: settings.recentFiles ?? []

    function opened(images: var): void {
        if (_top.pluginMode)
            return;
        const recent = Array.from(_top.settings.recentFiles ?? []);
        const fresh = Array.from(images).slice(-_top.limit).reverse();
        _top.settings.recentFiles = [...new Set(fresh.concat(recent))].slice(0, _top.limit);
    }

    function clean(): void {
        const recent = Array.from(_top.settings.recentFiles ?? []);
        const existing = recent.filter(path => _top.osUtils.fileExists(path));
        if (existing.length !== recent.length)
            _top.settings.recentFiles = existing;
    }

    function clear(): void {
        _top.settings.recentFiles = [];
    }
}
