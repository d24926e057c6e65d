import QtQuick
import QtTest
import PebbleUI

PebbleCase {
    id: _top
    name: "Slider"

    property real strength: 40

    Flickable {
        id: _panel
        anchors.fill: parent
        contentHeight: 2000

        PbSlider {
            id: _slider
            x: 20
            y: 20
            width: 212
            value: _top.strength
        }
    }

    SignalSpy { id: _finished; target: _slider; signalName: "editingFinished" }
    SignalSpy { id: _moved; target: _slider; signalName: "moved" }

    function reset(): void {
        wait(PebbleStyle.time.doublePress + 20);
        strength = 40.5;
        strength = 40;
        _slider.from = 0;
        _slider.to = 100;
        _slider.defaultValue = 10;
        _slider.autoValue = Number.NEGATIVE_INFINITY;
        _panel.contentY = 0;
        _finished.clear();
        _moved.clear();
    }

    function atHandle(event: var): void {
        event(_slider, _slider.handle.x + 6, _slider.height / 2);
    }

    function test_default_is_the_first_value(): void {
        compare(createTemporaryQmlObject("import PebbleUI; PbSlider { value: 33 }", _top).defaultValue, 33);
    }

    function test_double_press_data(): var {
        return [
            { tag: "within, Autopilot", gap: 60, auto: 70, value: 70 },
            { tag: "within, no Autopilot", gap: 60, auto: Number.NEGATIVE_INFINITY, value: 10 },
            { tag: "within, Autopilot out of range", gap: 60, auto: 101, value: 10 },
            { tag: "beyond", gap: 430, auto: 70, value: 40 },
        ];
    }

    function test_double_press(row: var): void {
        _slider.autoValue = row.auto;
        atHandle(mousePress);
        atHandle(mouseRelease);
        wait(row.gap);
        atHandle(mousePress);
        compare(_slider.value, row.value);
        // A second press within the time is consumed: moving on does not drag the handle.
        if (row.value !== 40) {
            mouseMove(_slider, 150, 8, 10, Qt.LeftButton);
            compare(_slider.value, row.value);
        }
        atHandle(mouseRelease);
        verify(_finished.count >= 2);
        strength = 55;
        compare(_slider.value, 55, "the binding still holds");
    }

    function test_first_press_drags_at_once(): void {
        atHandle(mousePress);
        mouseMove(_slider, 156, 8, -1, Qt.LeftButton);
        compare(_slider.value, 75);
        compare(_finished.count, 0);
        mouseRelease(_slider, 156, 8);
        compare(_finished.count, 1);
        verify(_moved.count >= 1);
    }

    function test_keys(): void {
        focusByKeyboard(_slider);
        for (const [key, value] of [[Qt.Key_Right, 41], [Qt.Key_Delete, 10], [Qt.Key_Left, 9], [Qt.Key_Backspace, 10]]) {
            _finished.clear();
            keyClick(key);
            compare(_slider.value, value);
            compare(_finished.count, 1);
        }
    }

    // Scrolling through a panel must not change what lies under the pointer.
    function test_wheel_scrolls_the_panel(): void {
        mouseWheel(_slider, 100, 8, 0, -240);
        tryVerify(() => _panel.contentY > 0);
        compare(_slider.value, 40);
    }

    function test_mark(): void {
        for (const row of [
            { tag: "at a quarter", from: 0, to: 100, auto: 25, x: 55.5, shown: true },
            { tag: "at the start", from: -25, to: 75, auto: -25, x: 5.5, shown: true },
            { tag: "at the end", from: 1, to: 100, auto: 100, x: 205.5, shown: true },
            { tag: "below the range", from: 1, to: 100, auto: -1, x: NaN, shown: false },
            { tag: "inside a range that goes below zero", from: -25, to: 75, auto: -1, x: 53.5, shown: true },
        ]) {
            strength = 40;
            _slider.from = row.from;
            _slider.to = row.to;
            _slider.autoValue = row.auto;
            const mark = findChild(_slider, "autoMark");
            compare(mark.visible, row.shown, row.tag);
            if (!row.shown)
                continue;
            fuzzyCompare(mark.x, row.x, 0.001);
            compare(mark.height, 8, row.tag);
            compare(mark.width, 1, row.tag);
            tryCompare(mark, "opacity", 1);
            strength = row.auto;
            tryCompare(mark, "opacity", 0);
        }
    }
}
