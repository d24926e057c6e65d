import QtQuick
import PebbleUI

// Where a tooltip goes beside its target, in the plane's coordinates. Knows no items.
QtObject {
    id: _top

    // As in PbTooltipPlane.Alignment; named here once more, since the plane is built from this.
    enum Side { Top, Right, Bottom, Left }

    property real spacing: PebbleStyle.size.tipSpacing
    property real edge: PebbleStyle.size.tipEdge

    // The top left corner for a tip of size `tip` beside the rectangle `target`. Above and below, a tip
    // shares the target's left edge, or its middle when `centred`; beside, its top edge.
    function place(target: rect, tip: size, side: int, centred: bool): point {
        const along = centred ? target.x + (target.width - tip.width) / 2 : target.x;
        switch (side) {
        case PbTipPlacement.Side.Right:
            return Qt.point(target.x + target.width + spacing, target.y);
        case PbTipPlacement.Side.Bottom:
            return Qt.point(along, target.y + target.height + spacing);
        case PbTipPlacement.Side.Left:
            return Qt.point(target.x - tip.width - spacing, target.y);
        default:
            return Qt.point(along, target.y - tip.height - spacing);
        }
    }

    // Moved as little as needed to stay `edge` away from every side of `plane`. Of a tip too large for the
    // plane the beginning is seen.
    function restrict(corner: point, tip: size, plane: size): point {
        return Qt.point(_within(corner.x, plane.width - tip.width - edge),
                        _within(corner.y, plane.height - tip.height - edge));
    }

    function _within(position: real, last: real): real {
        return Math.max(edge, Math.min(position, last));
    }
}
