import QtQuick
import imageenhance

// Joins what the right panel asks for to the dialogs and toasts of the window.
QtObject {
    id: _top

    required property RightPanel panel
    required property Toaster toaster
    required property PresetDialogs presetDialogs
    required property ApplyQuestions applyQuestions

    readonly property Connections _ofPanel: Connections {
        target: _top.panel

        function onSaveAsPreset(): void {
            _top.presetDialogs.editNew();
        }
        function onEditPreset(name: string): void {
            _top.presetDialogs.rename(name);
        }
        function onDeletePreset(name: string): void {
            _top.presetDialogs.askToDelete(name);
        }
    }
    readonly property Connections _ofLogic: Connections {
        target: _top.panel.logic

        function onAutopilotNeedsConfirmation(): void {
            _top.applyQuestions.askAutopilot();
        }
        function onWarned(title: string, message: string): void {
            _top.toaster.warn(title, message);
        }
    }
    readonly property Connections _ofStack: Connections {
        target: _top.panel.logic.stack

        // Once in a session.
        function onWarnAboutDuplicateFilters(): void {
            if (_private.warned || !_top.panel.windowState.integrations.shouldWarnAboutDuplicateFilters)
                return;
            _private.warned = true;
            _top.toaster.warn(qsTr("Duplicate filter added"), qsTr("Only the first filter of each type will be saved when replaying this action or smart filter."));
        }
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property bool warned: false
    }
}
