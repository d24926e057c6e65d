import QtQuick
import TControls
import imageenhance

// Which selection is to be seen over the picture: that of the edit mode, or the one that the pointer is over in the
// column.
QtObject {
    id: _top

    required property TControls controls
    required property ImageProcessor engine
    required property int editMode // EditMode
    required property int faceCount // -1: not looked for
    required property bool manualHideFaces
    required property string currentFilter

    readonly property bool shouldShowCrop: editMode === EditMode.Crop
    readonly property bool shouldShowInpaintMask: editMode === EditMode.Inpaint
    readonly property bool shouldShowText: _private.hovered === EditMode.Text || editMode === EditMode.Text
    readonly property bool shouldShowSubject: _hoversSubject || editMode === EditMode.Subject || shouldShowText
    readonly property bool shouldShowFaces: !manualHideFaces && (_private.hovered === EditMode.Faces || (faceCount > 0 && editMode === EditMode.Faces))
    readonly property string subjectModel: _hoversSubject ? _private.model : _subject.model ?? "None"
    readonly property var subjectStrokes: {
        const fill = subjectModel === "All" ? [{ "mode": "fill" }] : [];
        return fill.concat(_strokes());
    }

    readonly property bool _hoversSubject: _private.hovered === EditMode.Subject
    readonly property var _filter: controls.currentChanges >= 0 ? controls.currentFilter(controls.currentCategory) : {}
    readonly property var _subject: _filter.subjectSettings ?? ({})

    function _strokes(): var {
        if (_hoversSubject)
            return _private.strokes;
        if (shouldShowText)
            return _filter.params?.strokes ?? [];
        if (shouldShowInpaintMask)
            return controls.currentInpaintStrokes;
        return _subject.strokes ?? [];
    }

    // The pointer came over what stands for a selection, or left it. Without a model it is the current filter's own.
    function toggleHoverPreview(showPreview: bool, mode: int, model = ""): void {
        _private.hovered = showPreview ? mode : EditMode.None;
        if (mode !== EditMode.Subject || !showPreview)
            return;
        const filter = controls.currentFilter(currentFilter);
        _private.strokes = model !== "" ? [] : filter.params?.strokes ?? filter.subjectSettings?.strokes ?? [];
        _private.model = model || (filter.subjectSettings?.model ?? "");
        if (_private.model !== "" && _private.model !== "All" && !engine.maskTextures.maskHashes?.[_private.model])
            engine.editSubjectMask(engine.inputImage, { "model": _private.model });
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property int hovered: EditMode.None
        property string model: ""
        property var strokes: []
    }
}
