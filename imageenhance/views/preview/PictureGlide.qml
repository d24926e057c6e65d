import QtQuick

// Carries a flickable to a position, gently.
ParallelAnimation {
    id: _top

    required property Flickable flick

    function glideTo(x: real, y: real): void {
        _x.to = x;
        _y.to = y;
        restart();
    }

    NumberAnimation {
        id: _x
        target: _top.flick
        property: "contentX"
        duration: 250
        easing.type: Easing.InOutQuad
    }
    NumberAnimation {
        id: _y
        target: _top.flick
        property: "contentY"
        duration: 250
        easing.type: Easing.InOutQuad
    }
}
