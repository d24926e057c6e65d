import QtQuick
import QtTest
import imageenhance
import "../../imageenhance/utils/refinePlacement.mjs" as Placement

EnhancementParts {
    id: parts

    name: "RefinePlacement"

    readonly property size area: Qt.size(1280, 620)

    function init(): void {
        openWith(["Denoise", "Sharpen"]);
    }

    function dragHeader(name: string, x: real, y: real, release = true): void {
        const from = view(name).mapToItem(panels, 60, 20);
        mousePress(panels, from.x, from.y);
        for (let step = 1; step <= 10; ++step)
            mouseMove(panels, from.x + x * step / 10, from.y + y * step / 10, 5, Qt.LeftButton);
        if (release)
            mouseRelease(panels, from.x + x, from.y + y);
    }

    function stored(): point {
        return panels.mapFromGlobal(settings.dragState);
    }

    function test_bounds_data(): var {
        const panel = { width: 252, height: 300 };
        return [
            { tag: "inside", point: [10.4, 20.6], clamped: [10, 21], inside: true, near: true },
            { tag: "upper left", point: [-5, -1], clamped: [0, 0], inside: false, near: true },
            { tag: "lower right", point: [1029, 321], clamped: [1028, 320], inside: false, near: false },
            { tag: "at the corner", point: [1028, 320], clamped: [1028, 320], inside: true, near: false },
            { tag: "at 336", point: [336, 0], clamped: [336, 0], inside: true, near: false },
            { tag: "at 335", point: [335, 0], clamped: [335, 0], inside: true, near: true },
            { tag: "too tall", panel: { width: 252, height: 900 }, point: [0, 5], clamped: [0, 0], inside: false, near: true }
        ];
    }

    function test_bounds(row): void {
        const within = Placement.bounds(area, row.panel ?? { width: 252, height: 300 });
        const point = { x: row.point[0], y: row.point[1] };
        const inside = Placement.clamped(point, within);
        compare([inside.x, inside.y, Placement.isInside(point, within), Placement.isNearLeftEdge(point.x, within)], [...row.clamped, row.inside, row.near]);
    }

    function test_distances(): void {
        compare(Placement.attachedRect(area, 272, 252), { x: 756, y: 0, width: 252, height: 620 });
        const reaches = (x, collapsed) => Placement.canReattach(x, area.width, collapsed);
        compare([reaches(730, false), reaches(731, false), reaches(982, true), reaches(983, true)], [false, true, false, true]);
        const undocked = Placement.undocked(Placement.bounds(area, { width: 252, height: 300 }));
        compare([undocked.x, undocked.y, reaches(undocked.x, false)], [710, 274, false], "does not dock again at once");
        compare([Placement.isDocked({ x: 0, y: 0 }), Placement.isDocked({ x: 0, y: 1 })], [true, false]);
    }

    function test_header_undocks_and_docks(): void {
        mouseClick(row("Denoise"), 100, 24);
        dragHeader("Denoise", -400, 60);
        compare([panels.placement.docked, view("Denoise").x, view("Denoise").y, panels.sidebarOffset], [false, 356, 60, 0]);
        compare([stored().x, stored().y], [356, 60]);
        verify(view("Denoise").height < panels.height, "as high as its content");
        mouseClick(row("Sharpen"), 100, 24);
        compare([view("Sharpen").x, view("Sharpen").y], [356, 60], "one place for all");
        dragHeader("Sharpen", 5000, -5000, false);
        compare([panelState.canReattach, view("Sharpen").x, view("Sharpen").y], [true, 1028, 0], "within the window");
        mouseRelease(panels, 1270, 10);
        compare([panels.placement.docked, settings.dragState, panelState.canReattach, panels.sidebarOffset], [true, Qt.point(0, 0), false, 252]);
        dragHeader("Sharpen", -10, 0);
        compare(panels.placement.docked, true, "not far enough");
    }

    function test_stored_places_data(): var {
        return [
            { tag: "kept from an earlier run", at: [100, 50], x: 100, docked: false },
            { tag: "outside of the window", at: [3000, 50], x: 756, docked: true },
            { tag: "above it", at: [100, -50], x: 756, docked: true }
        ];
    }

    function test_stored_places(row): void {
        settings.dragState = panels.mapToGlobal(Qt.point(row.at[0], row.at[1]));
        actions.showRefinePanel("Denoise");
        compare([panels.placement.docked, view("Denoise").x], [row.docked, row.x]);
        compare(settings.dragState.x === 0 && settings.dragState.y === 0, row.docked);
    }

    function test_window_moves_and_is_resized(): void {
        const window = panels.Window.window;
        actions.showRefinePanel("Denoise");
        panels.placement.undock();
        const before = Qt.point(settings.dragState.x, settings.dragState.y); // and no reference to what changes
        window.x += 30;
        window.y += 20;
        tryVerify(() => settings.dragState.x === before.x + 30 && settings.dragState.y === before.y + 20);
        const kept = String(settings.dragState);
        parts.width -= 20;
        compare(panelState.refiningFilter, "");
        turns();
        compare(String(settings.dragState), kept);
        parts.width += 20;
    }

    function test_growing_panel_stays_inside(): void {
        actions.showRefinePanel("Denoise");
        dragHeader("Denoise", -400, 5000);
        const bottom = () => view("Denoise").y + view("Denoise").height;
        compare(bottom(), panels.height);
        panels.placement.contentHeight += 40;
        tryVerify(() => bottom() === panels.height && stored().y === view("Denoise").y);
        panels.placement.contentHeight = 5000;
        tryVerify(() => view("Denoise").y === 0 && view("Denoise").height === panels.height);
    }
}
