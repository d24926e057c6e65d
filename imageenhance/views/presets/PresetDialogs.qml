import QtQuick
import PebbleUI
import TControls
import TPresetsManager
import imageenhance

// What is asked about presets: a name for a new one, another name, whether one may go.
Item {
    id: _top

    required property TControls controls
    required property TPresetsManager presets
    required property FilterVocabulary vocabulary
    required property Helpers helpers
    required property DialogQueue queue

    signal saved(preset: var)
    signal warned(title: string, message: string)

    function edit(preset: var): void {
        if (queue.has(_editor.turn))
            return;
        _editor.preset = preset;
        queue.ask(_editor.turn);
    }

    // Of the filters that the current image has.
    function editNew(): void {
        edit({
            "version": 1,
            "filterOrder": controls.filterOrder,
            "controls": controls.currentControls
        });
    }

    function rename(name: string): void {
        const preset = _reader.read(name);
        if (preset)
            edit(preset);
    }

    function askToDelete(name: string): void {
        if (queue.has(_deletion.turn))
            return;
        _deletion.name = name;
        queue.ask(_deletion.turn);
    }

    PresetReader {
        id: _reader
        presets: _top.presets
        onWarned: (title, message) => _top.warned(title, message)
    }

    TPresetEditorDialog {
        id: _editor
        objectName: "presetEditor"
        presets: _top.presets
        vocabulary: _top.vocabulary
        queue: _top.queue
        userName: _top.helpers.osUtils.username()
        isMac: _top.helpers.appContext.isMac
        windowHeight: _top.height
        onSaved: preset => _top.saved(preset)
    }

    QuestionDialog {
        id: _deletion

        property string name

        objectName: "deletePresetWarning"
        queue: _top.queue
        turn: "delete preset"
        title: qsTr("Confirmation")
        messageFormat: Text.StyledText
        messageText: qsTr("Are you sure you want to delete <i>%1</i>?").arg(PebbleStyle.escaped(name))
        confirmText: qsTr("Delete")
        confirmType: PbButton.Type.Destructive
        onAccepted: _top.presets.deletePreset(name)
    }
}
