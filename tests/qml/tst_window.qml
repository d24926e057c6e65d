import QtQuick
import QtTest
import TImageUtils
import TQmlUtils
import imageenhance

// What the window keeps by itself: the recent files, which keys are held, and what the user did how often.
TestCase {
    name: "Window"

    MainSettings {
        id: settings
    }
    OSUtils {
        id: osUtils
    }
    TImageUtils {
        id: imageUtils
    }
    RecentFiles {
        id: recent
        settings: settings
        osUtils: osUtils
        pluginMode: false
    }
    KeyState {
        id: keys
        osUtils: osUtils
    }
    UsageCounts {
        id: usage
        panelCollapsed: true
        panelDocked: true
    }

    function test_recent_files_data(): var {
        const many = Array.from({ length: 14 }, (unused, i) => "/" + i);
        const here = imageUtils.urlToString(Qt.resolvedUrl("main.cpp"));
        return [
            { tag: "first", before: [], change: () => recent.opened(["/a"]), after: ["/a"] },
            { tag: "last opened in front", before: ["/a"], change: () => recent.opened(["/b", "/c"]), after: ["/c", "/b", "/a"] },
            { tag: "again", before: ["/a", "/b", "/c"], change: () => recent.opened(["/c"]), after: ["/c", "/a", "/b"] },
            { tag: "ten at most", before: ["/a"], change: () => recent.opened(many), after: many.slice(4).reverse() },
            { tag: "unreadable", before: ["/a", "/b", "/c"], change: () => recent.forget("/b"), after: ["/a", "/c"] },
            { tag: "gone", before: ["/gone", here], change: () => recent.clean(), after: [here] },
            { tag: "cleared", before: ["/a"], change: () => recent.clear(), after: [] }
        ];
    }

    function test_recent_files(row): void {
        settings.recentFiles = row.before;
        row.change();
        compare(Array.from(settings.recentFiles), row.after);
        compare(Array.from(recent.list), row.after);
    }

    function test_held_keys_data(): var {
        return [
            { tag: "pressed", press: [[Qt.Key_Space, Qt.NoModifier, false]], held: true },
            { tag: "released", press: [[Qt.Key_Space, Qt.NoModifier, false]], release: [Qt.Key_Space, Qt.NoModifier, false], held: false },
            { tag: "repeats", press: [[Qt.Key_Space, Qt.NoModifier, false]], release: [Qt.Key_Space, Qt.NoModifier, true], held: true },
            { tag: "repeated press alone", press: [[Qt.Key_Space, Qt.NoModifier, true]], held: false },
            { tag: "with a modifier", press: [[Qt.Key_Space, Qt.ControlModifier, false]], held: false },
            { tag: "modifier let go", press: [[Qt.Key_Space, Qt.ControlModifier, false], [Qt.Key_Space, Qt.NoModifier, true]], held: true }
        ];
    }

    function test_held_keys(row): void {
        keys.reset();
        for (const press of row.press)
            verify(keys.pressed(...press));
        if (row.release)
            verify(keys.released(...row.release));
        compare(keys.spaceHeld, row.held);
        compare(keys.panKeyHeld, row.held);
        verify(!keys.pressed(Qt.Key_A, Qt.NoModifier, false));
        keys.reset();
        verify(!keys.spaceHeld, "what was missed while another window had the keyboard");
    }

    function test_only_what_the_user_does_counts(): void {
        compare([usage.sidebarToggled, usage.menuDockedToggled], [0, 0], "the stored values are no toggling");
        usage.panelCollapsed = false;
        usage.panelCollapsed = true;
        usage.panelDocked = false;
        compare([usage.sidebarToggled, usage.menuDockedToggled], [2, 1]);
    }
}
