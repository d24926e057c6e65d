import QtQml
import TControls
import imageenhance

// The models of Upscale that the catalogue has, the one in use, and what Autopilot says about both.
QtObject {
    id: _top

    required property TControls controls
    required property string filterName
    required property string parentCategory
    required property ResolutionState resolution

    // `{ text, value }` each
    readonly property var offered: {
        const names = Array.from(controls.modelNames[parentCategory] ?? []);
        return _all.filter(model => names.includes(model.value));
    }
    readonly property int current: indexOf(resolution.model)
    readonly property bool fixesCompression: ["Standard", "High Fidelity", "Standard V2", "High Fidelity V2"].includes(resolution.model)
    readonly property bool usesNeuralEngine: ["Standard", "High Fidelity"].includes(resolution.model)

    // Null without a suggestion.
    readonly property var autoModel: resolution.autoFilter.enabled ? resolution.autoFilter.model ?? null : null

    readonly property var _all: [
        {
            text: qsTr("Standard (v2)"),
            value: "Standard V2"
        },
        {
            text: qsTr("High fidelity (v2)"),
            value: "High Fidelity V2"
        },
        {
            text: qsTr("Graphics"),
            value: "CGI"
        },
        {
            text: qsTr("Low resolution"),
            value: "Low Resolution"
        },
        {
            text: qsTr("Standard (v1)"),
            value: "Standard"
        },
        {
            text: qsTr("High fidelity (v1)"),
            value: "High Fidelity"
        }
    ]

    // -1 when it is not offered.
    function indexOf(model: var): int {
        return offered.findIndex(entry => entry.value === model);
    }

    // `strengths` are the present values of the sliders, which the new model takes over.
    function choose(model: string, strengths: var): void {
        if (resolution.filter.category === undefined || model === resolution.model)
            return;
        controls.setModel(filterName, model);
        controls.setParams(filterName, strengths);
    }
}
