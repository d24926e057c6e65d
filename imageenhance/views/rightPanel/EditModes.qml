import QtQuick
import imageenhance

// The edit mode of the whole window, and how it is entered and left. Leaving applies, but for Cancel.
QtObject {
    id: _top

    required property int faceCount // -1: not looked for

    readonly property alias editMode: _private.editMode // EditMode
    readonly property alias animated: _private.animated // the last change crossed None

    signal left(int mode, bool applied)
    signal entered(int mode)
    signal canceled(int mode)
    signal focusWanted
    signal runFaceDetection

    function switchEditMode(mode: int, applied = true): void {
        const before = _private.editMode;
        if (mode === before)
            return;
        if (mode === EditMode.None)
            focusWanted();
        left(before, applied);
        _private.animated = mode === EditMode.None || before === EditMode.None;
        _private.editMode = mode;
        entered(mode);
    }

    // Asking for the same mode again changes nothing.
    function toggleMode(mode: int): void {
        if (mode === EditMode.Faces && faceCount === -1) {
            switchEditMode(EditMode.None);
            runFaceDetection();
        }
        switchEditMode(mode);
    }

    function cancelEdits(): void {
        const known = [EditMode.None, EditMode.Crop, EditMode.Subject, EditMode.Faces, EditMode.Text, EditMode.Inpaint];
        if (known.includes(_private.editMode))
            canceled(_private.editMode);
        else
            console.warn("Unhandled EditMode enum value during cancel:", _private.editMode);
        switchEditMode(EditMode.None, false);
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property int editMode: EditMode.None
        property bool animated: false
    }
}
