import QtQuick
import QtTest
import imageenhance

TestCase {
    name: "UsageCounts"

    Component {
        id: counts
        UsageCounts {
            panelCollapsed: true
            panelDocked: true
        }
    }

    function test_only_what_the_user_does_counts(): void {
        const usage = createTemporaryObject(counts, this);
        compare([usage.sidebarToggled, usage.menuDockedToggled], [0, 0], "the stored values are no toggling");
        usage.panelCollapsed = false;
        usage.panelCollapsed = true;
        usage.panelDocked = false;
        compare([usage.sidebarToggled, usage.menuDockedToggled], [2, 1]);
    }
}
