import QtQml

// Reads the rows of a choice's model: an array of objects or of plain values, or a list model.
QtObject {
    required property var model

    readonly property int count: model?.count ?? model?.length ?? 0

    // A list of texts reaches a control as a string list, which is no array to JavaScript.
    readonly property bool isPlain: (model?.length ?? 0) > 0 && typeof model[0] !== "object"

    // The row itself, or undefined outside of the model.
    function row(index: int): var {
        if (typeof model?.get === "function")
            return index >= 0 && index < model.count ? model.get(index) : undefined;
        return model?.[index];
    }

    // A plain value is text and value in one, whatever the role.
    function read(index: int, role: string): var {
        const found = row(index);
        return found !== null && typeof found === "object" ? found[role] : found;
    }

    function text(index: int, role: string): string {
        return String(read(index, role) ?? "");
    }

    // -1 when no row has the value.
    function indexOf(value: var, role: string): int {
        for (let index = 0; index < count; ++index) {
            if (read(index, role) === value)
                return index;
        }
        return -1;
    }
}
