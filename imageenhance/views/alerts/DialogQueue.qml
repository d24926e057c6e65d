import QtQuick

// Lets one dialog be open at a time, in the order of asking, without a screen. A dialog is known by its name: one that
// is open or waits already is not asked for again.
QtObject {
    id: _top

    readonly property string current: _private.names[0] ?? ""
    readonly property int count: _private.names.length
    // The current one took another's place: the next click may be meant for that one.
    readonly property bool tookOver: _private.tookOver

    signal left(string name)
    signal emptied

    function has(name: string): bool {
        return _private.names.includes(name);
    }

    function ask(name: string): void {
        if (has(name))
            return;
        if (count === 0)
            _private.tookOver = false;
        _private.names = [..._private.names, name];
    }

    // It was answered, or nobody wants to know any more.
    function done(name: string): void {
        if (!has(name))
            return;
        if (name === current)
            _private.tookOver = true;
        _private.names = _private.names.filter(other => other !== name);
        left(name);
        if (count === 0)
            emptied();
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property list<string> names // the current one first
        property bool tookOver: false
    }
}
