import QtQuick
import TQmlUtils

// Which of the keys that count while held are down.
QtObject {
    id: _top

    required property OSUtils osUtils

    readonly property bool spaceHeld: _private.holds(Qt.Key_Space)
    readonly property bool slashHeld: _private.holds(Qt.Key_Backslash)
    readonly property bool hHeld: _private.holds(Qt.Key_H)
    readonly property bool mHeld: _private.holds(Qt.Key_M)
    readonly property bool shiftHeld: (_private.modifiers & Qt.ShiftModifier) !== 0
    readonly property bool panKeyHeld: spaceHeld || hHeld

    // Both answer whether it is one of the keys. A held key repeats releases and presses, which are neither.
    function pressed(key: int, modifiers: int, repeated: bool): bool {
        return _private.set(key, modifiers, true, repeated);
    }

    function released(key: int, modifiers: int, repeated: bool): bool {
        return _private.set(key, modifiers, false, repeated);
    }

    // A key released while another window had the focus is not seen; the system knows.
    function reset(): void {
        _private.modifiers = _top.osUtils.keyboardModifiers();
        _private.held = [];
    }

    readonly property QtObject _private: QtObject {
        id: _private

        readonly property list<int> counting: [Qt.Key_Space, Qt.Key_Backslash, Qt.Key_H, Qt.Key_M]
        property list<int> held
        property int modifiers: Qt.NoModifier

        function holds(key: int): bool {
            return held.includes(key) && modifiers === Qt.NoModifier;
        }

        function set(key: int, modifiers: int, down: bool, repeated: bool): bool {
            _private.modifiers = modifiers;
            if (!counting.includes(key))
                return false;
            if (!repeated)
                held = Array.from(held).filter(other => other !== key).concat(down ? [key] : []);
            return true;
        }
    }
}
