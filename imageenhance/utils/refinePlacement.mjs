// Where a refine panel is, as plain numbers. `area` has the width and the height of the work area, whose top left corner is
// the origin; a docked panel lies against the column at its right edge.

const reach = { full: 550, collapsed: 298 }; // from the area's right edge
const nearLeft = 336;
const undockedFrom = { x: 302 + 16, y: 62 - 16 }; // from the lower right of the bounds

export function isDocked(stored) {
    return stored.x === 0 && stored.y === 0;
}

export function attachedRect(area, columnWidth, panelWidth) {
    return { x: area.width - columnWidth - panelWidth, y: 0, width: panelWidth, height: area.height };
}

// For the panel's top left corner. A panel that is too large keeps to the top left.
export function bounds(area, panel) {
    return {
        minX: 0,
        minY: 0,
        maxX: Math.max(0, Math.round(area.width - panel.width)),
        maxY: Math.max(0, Math.round(area.height - panel.height))
    };
}

export function clamped(point, within) {
    return {
        x: Math.max(within.minX, Math.min(within.maxX, Math.round(point.x))),
        y: Math.max(within.minY, Math.min(within.maxY, Math.round(point.y)))
    };
}

export function isInside(point, within) {
    return point.x >= within.minX && point.x <= within.maxX && point.y >= within.minY && point.y <= within.maxY;
}

// Close enough to the column to dock there.
export function canReattach(x, areaWidth, collapsed) {
    return areaWidth - x < (collapsed ? reach.collapsed : reach.full);
}

export function undocked(within) {
    return clamped({ x: within.maxX - undockedFrom.x, y: within.maxY - undockedFrom.y }, within);
}

export function isNearLeftEdge(x, within) {
    return x - within.minX < nearLeft;
}
