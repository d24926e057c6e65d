import QtQuick
import QtQuick.Templates as T
import PebbleUI

// A horizontal slider from 0 to 100. A double press on the handle, or Delete or Backspace, resets it: to
// Autopilot's value if that is in range, else to the default one.
T.Slider {
    id: _top

    // Minus infinity means unset. An unset default takes the first value.
    property real defaultValue: -Infinity
    property real autoValue: -Infinity

    // Takes the place of the track's colours.
    property Gradient gradient: null
    property alias tooltip: _tip
    readonly property alias rules: _rules

    // After a release, a key let go, and a reset.
    signal editingFinished()

    function isInRange(candidate: real): bool {
        return _rules.isInRange(candidate);
    }

    function resetValue(): void {
        PbBoundProperty.write(_top, "value", _rules.resetTarget());
        moved();
        editingFinished();
    }

    // The ring that shows where the keyboard is.
    function focusRing(): PbFocusRing {
        return PbFocusRings.of(_top, handle, PebbleStyle.size.sliderHandle / 2);
    }

    from: 0
    to: 100
    stepSize: 1
    snapMode: T.Slider.SnapAlways
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    padding: 0
    implicitWidth: PebbleStyle.size.sliderWidth
    implicitHeight: PebbleStyle.size.icon

    Accessible.name: _tip.text
    Accessible.onIncreaseAction: _private.stepBy(1)
    Accessible.onDecreaseAction: _private.stepBy(-1)
    Component.onCompleted: {
        if (defaultValue === -Infinity)
            defaultValue = value;
    }
    onPressedChanged: {
        if (!pressed)
            editingFinished();
    }
    Keys.onDeletePressed: resetValue()
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Backspace) {
            event.accepted = true;
            resetValue();
        }
    }
    onVisualFocusChanged: focusRing()

    background: PbSliderTrack {
        trackX: _top.leftPadding
        trackWidth: _top.availableWidth
        filledWidth: _top.handle.x + _top.handle.width / 2 - _top.leftPadding
        gradient: _top.gradient
        active: _top.enabled
        markX: _rules.markX(_top.leftPadding, _top.availableWidth, PebbleStyle.size.sliderHandle)
        markVisible: _rules.hasAuto
        markFaded: !_rules.modified
    }

    handle: PbBox {
        x: _top.leftPadding + _top.visualPosition * (_top.availableWidth - width)
        y: _top.topPadding + (_top.availableHeight - height) / 2
        width: PebbleStyle.size.sliderHandle
        height: PebbleStyle.size.sliderHandle
        radius: width / 2
        color: !_top.enabled ? PebbleStyle.color.gray
             : _top.hovered || _top.pressed ? PebbleStyle.color.white : PebbleStyle.color.lightestGray

        // The first press of a pair passes through to the slider, so that a drag can begin at once.
        MouseArea {
            anchors.fill: parent
            onPressed: event => {
                event.accepted = _presses.press(Date.now());
                if (event.accepted)
                    _top.resetValue();
            }
        }
    }

    PbSliderRules {
        id: _rules
        from: _top.from
        to: _top.to
        value: _top.value
        defaultValue: _top.defaultValue
        autoValue: _top.autoValue
    }

    PbDoublePress {
        id: _presses
        interval: PebbleStyle.time.doublePress
    }

    QtObject {
        id: _private

        function stepBy(steps: int): void {
            steps > 0 ? _top.increase() : _top.decrease();
            _top.moved();
            _top.editingFinished();
        }
    }

    PbHoverTip {
        id: _tip
    }
}
