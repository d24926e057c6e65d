import QtQml

// What a slider decides without being seen: which of its three values count, where a reset goes, and
// where Autopilot's mark is. Minus infinity means that a value is not set.
QtObject {
    id: _top

    required property real from
    required property real to
    required property real value
    required property real defaultValue
    required property real autoValue

    readonly property bool hasAuto: isInRange(autoValue)
    readonly property bool modified: value !== autoValue

    function isInRange(candidate: real): bool {
        return candidate >= Math.min(from, to) && candidate <= Math.max(from, to);
    }

    // Autopilot's value goes before the default one; with neither in range the value stays.
    function resetTarget(): real {
        if (hasAuto)
            return autoValue;
        return isInRange(defaultValue) ? defaultValue : value;
    }

    // The left edge of the mark: the handle's middle when the slider is at `autoValue`, less half of
    // the one pixel that the mark is wide.
    function markX(leftPadding: real, availableWidth: real, handleWidth: real): real {
        const share = to === from ? 0 : (autoValue - from) / (to - from);
        return leftPadding + share * (availableWidth - handleWidth) + (handleWidth - 1) / 2;
    }
}
