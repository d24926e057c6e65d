import QtQuick
import PebbleUI
import "../../../utils/percent.mjs" as Percent

// One strength of a filter: shows in percent what the model holds as a fraction, follows the model, and writes what
// the user makes of it.
PbLabeledSlider {
    id: _top

    required property FilterControl control
    required property string key
    property string mirrorKey: "" // gets the same value

    property real fallback: 0.01 // what a missing value reads as
    property bool marked: true // whether Autopilot's value counts
    property int markFrom: 1
    property int markTo: 100
    property bool alwaysWrites: false // even a difference that is but the rounding

    readonly property real _stored: {
        const value = control.record.params[key];
        return typeof value === "number" ? value : fallback;
    }

    readonly property real _shown: Math.max(from, Math.min(to, Percent.shown(_stored)))

    // -1 is no value of a slider but for one that goes below zero.
    readonly property real _noMark: from > -1 ? -1 : -Infinity

    width: parent?.width ?? implicitWidth
    enabled: !control.locked
    from: 1
    to: 100
    value: _shown
    defaultValue: Math.max(from, Percent.shown(fallback))
    autoValue: marked ? Percent.suggestion(control.record.autoParams[key], markFrom, markTo, _noMark) : _noMark

    tooltip.alignment: control.tipSide
    tooltip.offsetX: control.tipOffset
    tooltip.targetForX: _top
    tooltip.focusTarget: slider

    onValueChanged: _private.write()
    Component.onCompleted: _private.ready = true

    QtObject {
        id: _private

        property bool ready: false

        function write(): void {
            if (!ready || !_top.control.record.followed || !(_top.alwaysWrites || Percent.differs(_top._stored, _top.value, _top.from)))
                return;
            if (_top.value !== _top._shown)
                store();
            else if (_top.value / 100 !== _top._stored)
                Qt.callLater(store); // what changed the slider is the model, which is still telling of its change
        }

        // A filter that was removed is not brought back.
        function store(): void {
            if (!_top.control.record.followed || !_top.control.record.exists)
                return;
            const value = _top.value / 100;
            const controls = _top.control.controls;
            if (_top.mirrorKey === "")
                controls.setParam(_top.control.filterName, _top.key, value);
            else
                controls.setParams(_top.control.filterName, { [_top.key]: value, [_top.mirrorKey]: value });
        }
    }
}
