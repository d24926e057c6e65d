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

    // -1 is no value of a slider but for one that goes below zero.
    readonly property real _noMark: from > -1 ? -1 : -Infinity

    width: parent?.width ?? implicitWidth
    enabled: !control.locked
    from: 1
    to: 100
    value: Percent.shown(_stored)
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

        // A filter that was removed is not brought back.
        function write(): void {
            const record = _top.control.record;
            if (!ready || !record.exists)
                return;
            if (!_top.alwaysWrites && !Percent.differs(_top._stored, _top.value, _top.from))
                return;
            const controls = _top.control.controls;
            if (_top.mirrorKey === "")
                controls.setParam(_top.control.filterName, _top.key, _top.value / 100);
            else
                controls.setParams(_top.control.filterName, {
                    [_top.key]: _top.value / 100,
                    [_top.mirrorKey]: _top.value / 100
                });
        }
    }
}
