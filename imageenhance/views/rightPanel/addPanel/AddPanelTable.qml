import QtQuick
import PebbleUI
import imageenhance

// The entries of the add panel from top to bottom, and what a click on each does. Knows no screen.
QtObject {
    id: _top

    enum Kind { Preset, Filter, Autopilot }

    required property list<string> presets // in any order
    required property FilterVocabulary vocabulary

    // { kind, name: of the preset or category, label, icon, section: the title above it if it begins one, and of
    // filters staysShut: whether its panel stays shut while Shift is held, editMode: entered after it was added }
    readonly property var rows: _private.titled([..._private.ofPresets(), ..._filters.filter(row => vocabulary.isOffered(row.name)), _autopilot])

    function indexOf(kind: int, name: string): int {
        return rows.findIndex(row => row.kind === kind && (kind === AddPanelTable.Kind.Autopilot || row.name === name));
    }

    // The entry `by` places from this one, with the ends joined; from none, the first or the last.
    function neighbour(index: int, by: int): int {
        const count = rows.length;
        if (index < 0)
            return by > 0 ? 0 : count - 1;
        return (index + by + count) % count;
    }

    readonly property var _names: vocabulary.controls.categories // CategoryNames
    readonly property string _enhancements: qsTr("Enhancements")
    readonly property var _filters: [
        _private.filter(_names.denoise, _enhancements, true, EditMode.None),
        _private.filter(_names.sharpen, _enhancements, true, EditMode.None),
        _private.filter(_names.exposure, _enhancements, true, EditMode.None),
        _private.filter(_names.whiteBalance, _enhancements, true, EditMode.None),
        _private.filter(_names.faceRecovery, _enhancements, true, EditMode.None),
        _private.filter(_names.textRecovery, _enhancements, false, EditMode.Text),
        _private.filter(_names.enhance, _enhancements, true, EditMode.None),
        _private.filter(_names.inpaint, qsTr("Generative"), false, EditMode.Inpaint)
    ]
    readonly property var _autopilot: ({
            "kind": AddPanelTable.Kind.Autopilot,
            "name": "",
            "label": qsTr("Apply Autopilot"),
            "icon": PebbleStyle.icon.autopilot,
            "section": qsTr("Not sure where to start?")
        })

    readonly property QtObject _private: QtObject {
        id: _private

        function filter(name: string, section: string, staysShut: bool, editMode: int): var {
            return {
                "kind": AddPanelTable.Kind.Filter,
                name,
                "label": _top.vocabulary.label(name),
                "icon": _top.vocabulary.icon(name),
                section,
                staysShut,
                editMode
            };
        }

        function ofPresets(): var {
            return Array.from(_top.presets).sort((a, b) => a.localeCompare(b)).map(name => ({
                        "kind": AddPanelTable.Kind.Preset,
                        name,
                        "label": name,
                        "icon": PebbleStyle.icon.preset,
                        "section": qsTr("Presets")
                    }));
        }

        // A section's title stands over its first entry alone.
        function titled(rows: var): var {
            return rows.map((row, i) => rows[i - 1]?.section === row.section ? Object.assign({}, row, {
                    "section": ""
                }) : row);
        }
    }
}
