import QtQuick

// Stands for the engine and writes down what it is asked to do.
QtObject {
    id: _top

    property var calls: []
    property var inputImage: ({ uid: "/a.jpg#1", filepath: "/a.jpg", image: null })
    property var procResult: ({ requestUid: 0 })
    property real progress: 0
    property string status: ""
    property string error: ""
    property bool processing: false
    property bool downloadingModels: false
    property bool preCachingPostProcModels: false

    signal paramsChanged

    function cancelProc(): void {
        calls.push("cancel");
    }

    function procRequest(roi: rect, filterOrder: var): void {
        calls.push({ roi: roi, order: Array.from(filterOrder) });
    }

    function autoPilot(image: var, options: var): void {
        calls.push({ uid: image.uid, options: options });
    }

    function requests(): var {
        return calls.filter(call => call.roi !== undefined);
    }
}
