import QtQuick

// Which messages are shown at the window's edge, without a screen. A toast is known by its title, message and type: one
// that is shown already is not added again.
QtObject {
    id: _top

    required property int timeoutDefault // milliseconds; none when not above 0

    readonly property alias model: _toasts
    readonly property int count: _toasts.count

    // Takes { title, message, type, timeout, showOnlyOnce, onDismiss }. The answer is for whatever equal toast
    // is shown: `active`, and dismiss(skipDismissCallback).
    // No types here: they would strip the functions off.
    function queue(options) {
        const toast = {
            "title": options.title ?? "",
            "message": options.message ?? "",
            "type": options.type ?? 0,
            "timeout": options.timeout ?? _top.timeoutDefault
        };
        const crumb = [toast.title, toast.message, toast.type].join("-");
        if (options.showOnlyOnce && _private.shown.has(crumb))
            return _private.handle(toast);
        if (options.showOnlyOnce)
            _private.shown.add(crumb);
        console.info("Queueing toast:", toast.title, "|", toast.message);
        if (_private.find(toast) < 0) {
            _toasts.append(toast);
            _private.callbacks.push(options.onDismiss ?? null);
        }
        return _private.handle(toast);
    }

    function dismiss(index: int, skipDismissCallback = false): void {
        if (index < 0 || index >= _toasts.count)
            return;
        const callback = _private.callbacks[index];
        _private.callbacks.splice(index, 1);
        _toasts.remove(index);
        if (callback && !skipDismissCallback)
            callback();
    }

    readonly property ListModel _model: ListModel {
        id: _toasts
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property var callbacks: [] // a list model holds no functions
        readonly property var shown: new Set() // of those that show once a session

        function find(toast: var): int {
            for (let i = 0; i < _toasts.count; ++i) {
                const entry = _toasts.get(i);
                if (entry.title === toast.title && entry.message === toast.message && entry.type === toast.type)
                    return i;
            }
            return -1;
        }

        function handle(toast) {
            return {
                get active() {
                    return _private.find(toast) >= 0;
                },
                dismiss(skipDismissCallback = false) {
                    _top.dismiss(_private.find(toast), skipDismissCallback);
                }
            };
        }
    }
}
