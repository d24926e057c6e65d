import QtQuick

// Which of the keys that count while held are down.
QtObject {
    id: _top

    required property var osUtils // OSUtils

    readonly property bool spaceHeld: _private.space && _private.plain
    readonly property bool slashHeld: _private.slash && _private.plain
    readonly property bool hHeld: _private.h && _private.plain
    readonly property bool mHeld: _private.m && _private.plain
    readonly property bool panKeyHeld: spaceHeld || hHeld

    function pressed(key: int, modifiers: int): bool {
        return _private.set(key, modifiers, true);
    }

    function released(key: int, modifiers: int): bool {
        return _private.set(key, modifiers, false);
    }

    // A key released while another window had the focus is not seen; the system tells.
    function reset(): void {
        _private.modifiers = _top.osUtils.keyboardModifiers();
        _private.space = false;
        _private.slash = false;
        _private.h = false;
        _private.m = false;
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property bool space: false
        property bool slash: false
        property bool h: false
        property bool m: false
        property int modifiers: Qt.NoModifier
        readonly property bool plain: modifiers === Qt.NoModifier

        function set(key: int, modifiers: int, down: bool): bool {
            _private.modifiers = modifiers;
            switch (key) {
            case Qt.Key_Space:
                space = down;
                return true;
            case Qt.Key_Backslash:
                slash = down;
                return true;
            case Qt.Key_H:
                h = down;
                return true;
            case Qt.Key_M:
                m = down;
                return true;
            default:
                return false;
            }
        }
    }
}
