import QtQuick

// One colour of a control in each of its states. The first that holds counts: disabled, hovered,
// selected, normal.
QtObject {
    required property color normal
    property color hovered: normal
    property color selected: normal
    property color disabled: normal

    function pick(isEnabled: bool, isHovered: bool, isSelected: bool): color {
        if (!isEnabled)
            return disabled;
        if (isHovered)
            return hovered;
        return isSelected ? selected : normal;
    }
}
