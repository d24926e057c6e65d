import QtQuick
import PebbleUI
import PebbleGallery

GallerySection {
    id: _top

    required property PbTooltipPlane plane

    title: "PbTooltipView"
    bottomPadding: 110

    // A tip stays where it was shown: the page has found its place by then.
    Timer {
        interval: 200
        running: true
        onTriggered: _top.plane.showTip({
            target: _target, offsetX: -84, alignment: PbTooltipPlane.Alignment.Bottom, title: "Recover details",
            text: "A tooltip stands in a plane above everything else in its window, at a distance from the edges.",
        })
    }

    GalleryCase {
        name: "pinned"

        PbLabel {
            id: _target
            text: "The target of the tip below"
        }
    }
}
