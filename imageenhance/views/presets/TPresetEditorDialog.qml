pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls.Fusion
import QtQuick.Layouts
import PebbleUI
import TPresetsManager
import imageenhance
import "../../utils/presetReduction.mjs" as Reduction

// Names a preset and stores it, reduced to what works on any image. It stays open until the preset can be read back:
// the store itself says nothing about a file that it could not write.
QueuedDialog {
    id: _top

    required property TPresetsManager presets
    required property FilterVocabulary vocabulary
    required property string userName
    required property real windowHeight
    required property bool isMac
    property var preset: ({}) // { version, name unless it is new, filterOrder, controls }

    readonly property string name: _field.text
    readonly property var filteredFilterOrder: _state.reduction.preset.filterOrder
    readonly property bool controlsModified: _state.reduction.modified
    readonly property bool canSave: name !== "" && !_field.showError
    readonly property bool failed: _private.failedName !== "" && _private.failedName === name

    signal saved(preset: var)

    function save(): void {
        if (!canSave || !settled)
            return;
        const preset = Object.assign({}, _state.reduction.preset, {
            "name": _top.name
        });
        presets.savePreset(preset);
        if (!Reduction.sameContent(presets.getPreset(name), preset)) {
            _private.failedName = name;
            if (name !== _state.ownName)
                presets.deletePreset(name);
            return;
        }
        if (_state.ownName !== "" && _state.ownName !== name)
            presets.deletePreset(_state.ownName);
        saved(preset);
        answer(true);
    }

    turn: "preset editor"
    title: _state.ownName === "" ? qsTr("New preset") : qsTr("Rename")
    closePolicy: settled ? Popup.CloseOnEscape | Popup.CloseOnPressOutside : Popup.NoAutoClose
    height: Math.min(implicitHeight, windowHeight - 40)
    buttons: [
        {
            type: PbButton.Type.Secondary,
            text: qsTr("Cancel"),
            onClicked: () => _top.answer(false)
        },
        {
            type: PbButton.Type.Primary,
            text: qsTr("Save"),
            enabled: _top.canSave,
            onClicked: () => _top.save()
        }
    ]
    onAboutToShow: {
        _private.failedName = "";
        _private.taken = Array.from(presets.presets); // qmllint disable unresolved-type
        _field.text = _state.ownName;
    }
    onOpened: {
        _field.forceActiveFocus(Qt.OtherFocusReason);
        _field.selectAll();
    }

    ColumnLayout {
        spacing: PebbleStyle.size.spacing
        Layout.fillWidth: true
        Layout.fillHeight: true
        Keys.onReturnPressed: _top.save()
        Keys.onEnterPressed: _top.save()

        PbLabel {
            text: _state.ownName === "" ? qsTr("Enter a name for your preset") : qsTr("Edit the name of your preset")
            Layout.fillWidth: true
        }
        // It keeps the keyboard on the keys that end the dialog: a preset that can't be saved gets another name.
        PbTextField {
            id: _field
            objectName: "presetName"
            maximumLength: 80
            placeholderText: qsTr("%1's secret sauce").arg(_top.userName.charAt(0).toUpperCase() + _top.userName.slice(1))
            validator: FileNameValidator {
                isMac: _top.isMac
            }
            validateInput: name => _rules.isFree(name)
            Layout.fillWidth: true
            Accessible.name: qsTr("Name")
            Accessible.description: _error.text
            Keys.onReturnPressed: _top.save()
            Keys.onEnterPressed: _top.save()
            Keys.onEscapePressed: _top.answer(false)
        }
        PbLabel {
            id: _error
            objectName: "presetError"
            visible: text !== ""
            text: {
                if (!_field.acceptableInput)
                    return qsTr("A preset's name is the name of its file, which can't have every character.");
                if (_field.showError)
                    return qsTr("A preset with that name already exists.");
                return _top.failed ? qsTr("The preset could not be saved. The disk may be full, or nothing can be written to %1. Free some space or try another name, and save it again.").arg(_top.presets.presetsDirectory) : "";
            }
            color: PebbleStyle.color.textWarning
            wrapMode: Text.Wrap
            elide: Text.ElideNone
            Layout.fillWidth: true
            Accessible.role: Accessible.AlertMessage
        }
        PbLabel {
            text: qsTr("Preset")
            type: PbLabel.Type.Title
            Layout.fillWidth: true
            Layout.topMargin: PebbleStyle.size.spacing
        }
        PresetFilterList {
            vocabulary: _top.vocabulary
            filterOrder: _top.filteredFilterOrder
            controls: _state.reduction.preset.controls
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.maximumHeight: implicitHeight
            Layout.minimumHeight: Math.min(implicitHeight, rowHeight)
        }
        Repeater {
            model: [qsTr("Some enhancements were modified or removed so that your preset will work across multiple images."), qsTr("Presets appear in the enhancements menu so you can reuse your favorite settings across photos.")]

            PbLabel {
                required property string modelData
                text: modelData
                color: PebbleStyle.color.lightGray
                wrapMode: Text.Wrap
                elide: Text.ElideNone
                Layout.fillWidth: true
            }
        }
    }

    PresetNameRules {
        id: _rules
        taken: _private.taken
        ownName: _state.ownName
    }

    QtObject {
        id: _state
        readonly property string ownName: _top.preset.name ?? ""
        readonly property var reduction: Reduction.reduced(_top.preset)
    }

    QtObject {
        id: _private
        property string failedName // that could not be written
        property var taken: [] // when the dialog opened: what it saves itself is no obstacle
    }
}
