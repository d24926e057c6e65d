import QtQuick
import QtTest

// One control on a shown window. Any warning fails the case; `reset` is what a document sets back before
// each function, and `maker` is what `make` makes, `spied` the signal of it that `count` counts.
TestCase {
    id: _case

    property Component maker
    property string spied
    readonly property alias count: _spy.count

    when: windowShown
    width: 400
    height: 300
    visible: true

    SignalSpy { id: _spy; signalName: _case.spied }

    Component {
        id: _spyMaker
        SignalSpy {}
    }

    function reset(): void {}

    function init(): void {
        failOnWarning(/.?/);
        _case.reset();
    }

    // Both may be left out; the control is destroyed after the function.
    function make(properties: var, from: Component): Item {
        const made = createTemporaryObject(from ?? maker, _case, properties ?? {});
        _spy.target = made;
        _spy.clear();
        return made;
    }

    function spy(target: QtObject, signal: string): SignalSpy {
        return createTemporaryObject(_spyMaker, _case, { target: target, signalName: signal });
    }

    function press(keys: var): void {
        for (const key of keys)
            keyClick(key);
    }

    function focusByKeyboard(item: Item): void {
        item.forceActiveFocus(Qt.TabFocusReason);
    }

    function openByMouse(box: Item): void {
        mouseClick(box);
        tryVerify(() => box.popup.opened);
    }

    function rowOf(box: Item, index: int): Item {
        box.popup.contentItem.forceLayout();
        return box.popup.contentItem.itemAtIndex(index);
    }
}
