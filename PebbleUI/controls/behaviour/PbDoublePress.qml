import QtQml

// Distinguishes the second press of a pair from a single one. A third press starts a new pair.
QtObject {
    id: _top

    // The longest time between the two presses, in milliseconds.
    required property int interval

    property real _first: -Infinity

    // To be called at each press, with its time in milliseconds. True for the second of a pair.
    function press(now: real): bool {
        const isSecond = now - _first <= interval && now >= _first;
        _first = isSecond ? -Infinity : now;
        return isSecond;
    }
}
