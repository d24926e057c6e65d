pragma Singleton
pragma ComponentBehavior: Bound

import QtQml
import QtQuick
import PebbleUI

// Makes the ring round a control when that first gets the focus: of all the controls of a window
// one at a time shows it, and most never do.
QtObject {
    id: _top

    readonly property Component _maker: Component {
        PbFocusRing {}
    }

    // The ring in `frame`, a part of `control`, that shows when `control` has the keyboard.
    function of(control: Item, frame: Item, radius: real): PbFocusRing {
        for (const child of frame.children) {
            const ring = child as PbFocusRing;
            if (ring)
                return ring;
        }
        return _maker.createObject(frame, { target: control, targetRadius: radius }) as PbFocusRing;
    }
}
