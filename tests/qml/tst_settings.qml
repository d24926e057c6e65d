import QtQuick
import QtTest
import imageenhance
import "../../imageenhance/settings/settingsRules.mjs" as Rules

// Stored settings, as another version, a crash or a disk may have left them. The store is the test's own.
TestCase {
    id: _case

    name: "Settings"

    Component {
        id: all
        MainSettings {}
    }

    // A first start writes every key.
    function initTestCase(): void {
        settings().destroy();
        wait(0);
    }

    function settings(): var {
        const made = createTemporaryObject(all, _case);
        made.repair();
        return made;
    }

    // Sets what the next start finds.
    function store(values: var): void {
        const written = settings();
        for (const [key, value] of Object.entries(values))
            written.setValue(key, value);
        written.sync();
        written.destroy();
        wait(0);
    }

    function test_lists_come_back_as_they_were_data(): var {
        return [
            { tag: "empty", value: [] },
            { tag: "one", value: ["necks"] },
            { tag: "two", value: ["necks", "hair"] }
        ];
    }

    function test_lists_come_back_as_they_were(row): void {
        const before = settings();
        before.faceParts = row.value;
        before.sync();
        before.destroy();
        wait(0);
        compare(Array.from(settings().faceParts), row.value);
    }

    function test_values_data(): var {
        return [
            { tag: "another version's scheme", key: "colorScheme", value: "purple", now: "auto" },
            { tag: "a scheme of ours", key: "colorScheme", value: "light", now: "light" },
            { tag: "no window state", key: "windowVisibility", value: 77, now: 2 },
            { tag: "no number", key: "autopilotFaceStrength", value: "much", now: 80 },
            { tag: "too large", key: "autopilotFaceStrength", value: 1000, now: 80 },
            { tag: "number as text", key: "autopilotDenoiseRawStrength", value: "1", now: 1 },
            { tag: "no list", key: "autopilotDenoiseLevels", value: 5, now: ["medium", "high", "severe"] },
            { tag: "list of one as text", key: "recentFiles", value: "/a.jpg", now: ["/a.jpg"] },
            { tag: "list of nonsense", key: "outputFolderList", value: "nonsense", now: Rules.RULES.outputFolderList.fallback },
            { tag: "no rectangle", key: "windowGeometry", value: "garbage", now: Qt.rect(0, 0, 0, 0) }
        ];
    }

    function test_values(row): void {
        store({ [row.key]: row.value });
        compare(settings()[row.key], row.now);
    }

    // A rule that refuses its own default would make every start complain.
    function test_rules_accept_what_they_fall_back_to(): void {
        for (const [key, rule] of Object.entries(Rules.RULES))
            verify(rule.accepts(rule.fallback), key);
    }
}
