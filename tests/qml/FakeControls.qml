import QtQuick
import TImageSettings

// Stands for the model: as much of it as the window's flows touch.
QtObject {
    id: _top

    property var calls: []
    property var loadedImages: ["/a.jpg"]
    property var selectedImages: [0]
    property int currentIndex: 0
    property string currentImage: loadedImages[currentIndex] ?? ""
    property var currentControls: ({ changesCount: 1, autoPilot: TImageSettings.On })
    property var filterOrder: ["Denoise"]
    property var modified: ["/a.jpg"]
    property var justSaved: []
    property bool isRaw: false

    function getControls(index: int): var {
        return { justSaved: justSaved.includes(loadedImages[index]) };
    }

    function getFilterOrder(index: int): var {
        return filterOrder;
    }

    function isModifiedFromAutopilot(path: string): bool {
        return modified.includes(path);
    }

    function setParams(name: string, params: var): bool {
        calls.push({ setParams: name, params: params });
        return true;
    }

    function setAutoPilotStatus(status: int): void {
        calls.push({ status: status });
        currentControls = Object.assign({}, currentControls, { autoPilot: status });
    }

    function setAutopilotSettings(settings: var): void {
        calls.push({ autopilot: settings });
    }

    function setFilterOrder(order: var): void {
        calls.push({ order: Array.from(order) });
        filterOrder = order;
    }

    function applyAutopilotToImage(): void {
        calls.push("apply");
        filterOrder = ["Sharpen", "Denoise", "Enhance"];
    }

    function initializeFilter(name: string, category: string): void {
        calls.push({ initialize: name });
    }

    function resetToAuto(name: string, category: string): void {}
    function setParam(name: string, key: string, value: var): bool { return true; }
    function markInitialFiltersApplied(): void { calls.push("marked"); }
    function resetManualAPCheck(): void { calls.push("checked"); }

    function closeImage(index: int): void {
        calls.push({ close: index });
        loadedImages = loadedImages.filter((path, at) => at !== index);
    }

    function closeSelectedImages(): void { calls.push("closeSelected"); }
    function reset(): void { calls.push("reset"); }
}
