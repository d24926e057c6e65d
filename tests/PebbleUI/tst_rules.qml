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

    function test_double_press_data(): var {
        return [
            { tag: "within", times: [1000, 1400], second: [false, true] },
            { tag: "beyond", times: [1000, 1401], second: [false, false] },
            { tag: "a late second starts a pair of its own", times: [1000, 1500, 1700], second: [false, false, true] },
            { tag: "a third press is a first one", times: [1000, 1100, 1200, 1300], second: [false, true, false, true] },
            { tag: "clock set back", times: [5000, 1000, 1200], second: [false, false, true] },
        ];
    }

    function test_double_press(row: var): void {
        _presses._first = Number.NEGATIVE_INFINITY;
        compare(row.times.map(t => _presses.press(t)), row.second);
    }

    function test_numbers_data(): var {
        return [
            { tag: "integer", text: "12", value: 12 },
            { tag: "negative fraction", text: "-.5", value: -0.5 },
            { tag: "trailing point while typing", text: "3.", value: 3 },
            { tag: "empty", text: "", value: NaN },
            { tag: "blank", text: " ", value: NaN },
            { tag: "sign alone", text: "-", value: NaN },
            { tag: "hexadecimal", text: "0x10", value: NaN },
            { tag: "exponent", text: "1e3", value: NaN },
            { tag: "word", text: "Infinity", value: NaN },
            { tag: "unit behind", text: "5px", value: NaN },
        ];
    }

    function test_numbers(row: var): void {
        compare(_numbers.parse(row.text), row.value);
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

    function test_reset_target_data(): var {
        return [
            { tag: "Autopilot first", auto: 30, def: 5, target: 30 },
            { tag: "Autopilot at the end of the range", auto: -25, def: 5, target: -25 },
            { tag: "Autopilot out of range", auto: 90, def: 5, target: 5 },
            { tag: "nothing set", auto: Number.NEGATIVE_INFINITY, def: Number.NEGATIVE_INFINITY, target: 10 },
            { tag: "nothing in range", auto: -100, def: 100, target: 10 },
        ];
    }

    function test_reset_target(row: var): void {
        _slider.autoValue = row.auto;
        _slider.defaultValue = row.def;
        compare(_slider.resetTarget(), row.target);
    }
}
