pragma ComponentBehavior: Bound

import QtQuick
import PebbleUI

// Laid over a window, or over a dialog's content, so that tooltips are above everything in it. Takes no
// clicks. Shows one tip at a time.
Item {
    id: _top

    enum Alignment { Top, Right, Bottom, Left }

    // Keep tips at a distance from the plane's sides.
    property bool restrictTipToBounds: true

    // The tip on show, or null.
    readonly property alias currentTip: _private.tip

    // Shows a tip in place of the one before and returns its id, or -1 without a target. `opts` takes
    // target, targetForX, targetForY (stand for the target in one direction), title, text, textFormat,
    // alignment, offsetX, offsetY and hugContents; all but the target may be left out.
    function showTip(opts: var): int {
        if (!opts?.target) {
            console.warn("Target is required to show tip");
            return -1;
        }
        hideCurrentTip();
        // A fresh view is the last child, and so on top of whatever else the plane holds.
        _private.tip = _view.createObject(_top, {
            target: opts.target,
            targetForX: opts.targetForX ?? opts.target,
            targetForY: opts.targetForY ?? opts.target,
            title: opts.title ?? "",
            text: opts.text ?? "",
            textFormat: opts.textFormat ?? Text.PlainText,
            alignment: opts.alignment ?? PbTooltipPlane.Alignment.Top,
            offset: Qt.point(opts.offsetX ?? 0, opts.offsetY ?? 0),
            hugContents: opts.hugContents ?? false,
        }) as PlacedTip;
        _private.tip.place();
        _private.tip.visible = true;
        _private.lastId += 1;
        return _private.lastId;
    }

    function hideCurrentTip(): void {
        const old = _private.tip;
        _private.tip = null;
        old?.destroy();
    }

    // Ids of tips that are gone already are ignored.
    function hideTip(tipId: int): void {
        if (tipId === _private.lastId)
            hideCurrentTip();
    }

    onWidthChanged: _private.tip?.place()
    onHeightChanged: _private.tip?.place()

    component PlacedTip: PbTooltipView {
        id: _tip

        required property Item target
        required property Item targetForX
        required property Item targetForY
        required property int alignment
        required property point offset

        function place(): void {
            if (!target || !targetForX || !targetForY)
                return;
            const xSide = targetForX.mapToItem(_top, Qt.rect(0, 0, targetForX.width, targetForX.height));
            const ySide = targetForY.mapToItem(_top, Qt.rect(0, 0, targetForY.width, targetForY.height));
            const size = Qt.size(width, height);
            let corner = _placement.place(Qt.rect(xSide.x, ySide.y, xSide.width, ySide.height), size, alignment,
                                          hugContents);
            corner = Qt.point(corner.x + offset.x, corner.y + offset.y);
            if (_top.restrictTipToBounds)
                corner = _placement.restrict(corner, size, Qt.size(_top.width, _top.height));
            x = Math.round(corner.x);
            y = Math.round(corner.y);
        }

        visible: false
        onWidthChanged: place()
        onHeightChanged: place()

        // A tip does not outlive what it describes.
        onTargetChanged: {
            if (!target && _private.tip === _tip)
                _top.hideCurrentTip();
        }
    }

    Component {
        id: _view

        PlacedTip {}
    }

    PbTipPlacement {
        id: _placement
    }

    QtObject {
        id: _private

        property PlacedTip tip: null
        property int lastId: 0
    }
}
