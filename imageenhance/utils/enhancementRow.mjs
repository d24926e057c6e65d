// What a row of the column shows of its filter. `names` are the model's names of categories.

const starts = ["Scanning", "Initializing", "Preparing", "Starting"];

// What is selected for the filter; empty where there is nothing to select.
export function subLine(category, filter, names) {
    const params = filter?.params ?? {};
    switch (category) {
    case names.textRecovery:
        return ofText(params.strokes ?? []);
    case names.faceRecovery:
        return ofFaces((params.selectedFaces ?? []).length);
    default:
        return params.mask ? ofSubject(filter.subjectSettings?.model ?? "", filter.subjectSettings?.strokes ?? []) : "";
    }
}

function ofSubject(model, strokes) {
    if (strokes.length > 0)
        return qsTr("Custom");
    if (model === "All")
        return "";
    return model === "none" ? qsTr("Nothing selected") : model;
}

function ofText(strokes) {
    if (strokes.length === 0)
        return qsTr("Nothing selected");
    return strokes.length === 1 && strokes[0].mode === "fill" ? qsTr("All") : qsTr("Custom");
}

function ofFaces(count) {
    if (count === 0)
        return qsTr("No faces selected");
    return count === 1 ? qsTr("1 face selected") : qsTr("%1 faces selected").arg(count);
}

// Whether the engine's status says that a filter's work begins.
export function startsSpinner(status) {
    return starts.some(word => status.includes(word));
}

// Progress runs from 0 to 1. A run that ends early never reaches its end.
export function endsSpinner(progress, processing) {
    return progress >= 1 || !processing;
}

export function showsSpinner(running, isOpen, anyOpen, enabled, locked) {
    return running && (isOpen || !anyOpen) && enabled && !locked;
}

// The row that a dragged one stands for: that under its hot spot, a quarter of its height from its top.
export function rowAt(y, rowHeight, pitch, count) {
    return Math.max(0, Math.min(count - 1, Math.floor((y + rowHeight / 4) / pitch)));
}
