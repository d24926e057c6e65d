import QtQuick
import QtTest
import PebbleUI

// The behaviour objects by themselves, without a window.
TestCase {
    id: _top
    name: "Rules"

    PbDoublePress { id: _presses; interval: 400 }
    PbNumberText { id: _numbers }

    PbSliderRules {
        id: _slider
        from: -25
        to: 75
        value: 10
        defaultValue: 0
        autoValue: Number.NEGATIVE_INFINITY
    }

    function test_double_press(): void {
        for (const [name, times, second] of [
            ["within", [1000, 1400], [false, true]],
            ["beyond", [1000, 1401], [false, false]],
            ["a late second starts a pair of its own", [1000, 1500, 1700], [false, false, true]],
            ["a third press is a first one", [1000, 1100, 1200, 1300], [false, true, false, true]],
            ["clock set back", [5000, 1000, 1200], [false, false, true]],
        ]) {
            _presses._first = Number.NEGATIVE_INFINITY;
            compare(times.map(t => _presses.press(t)), second, name);
        }
    }

    // A point may stand last while a number is typed.
    function test_numbers(): void {
        for (const [text, value] of [["12", 12], ["-.5", -0.5], ["3.", 3]])
            compare(_numbers.parse(text), value, text);
        for (const text of ["", " ", "-", "0x10", "1e3", "Infinity", "5px"])
            compare(_numbers.parse(text), NaN, text);
    }

    // A model's 37.2 shown as "37" must not come back as 37.
    function test_text_differs_only_at_the_precision_shown(): void {
        _numbers.decimals = 0;
        verify(!_numbers.differs("37", 37.2));
        verify(_numbers.differs("38", 37.2));
        verify(!_numbers.differs("-", 37.2));
        _numbers.decimals = 1;
        verify(_numbers.differs("37", 37.2));
    }

    function test_decimal_separator_of_the_language(): void {
        _numbers.decimals = 2;
        _numbers.decimalPoint = Qt.locale("ar_EG").decimalPoint;
        verify(_numbers.isForeignPoint(_numbers.decimalPoint));
        verify(_numbers.isForeignPoint(","));
        verify(!_numbers.isForeignPoint("."));
        _numbers.decimals = 0;
        verify(!_numbers.isForeignPoint(","));
    }

    function test_reset_target(): void {
        for (const [name, auto, value, target] of [
            ["Autopilot first", 30, 5, 30],
            ["Autopilot at the end of the range", -25, 5, -25],
            ["Autopilot out of range", 90, 5, 5],
            ["nothing set", Number.NEGATIVE_INFINITY, Number.NEGATIVE_INFINITY, 10],
            ["nothing in range", -100, 100, 10],
        ]) {
            _slider.autoValue = auto;
            _slider.defaultValue = value;
            compare(_slider.resetTarget(), target, name);
        }
    }
}
