pragma ComponentBehavior: Bound
import QtQml.Models
import QtQuick
import PebbleUI
import TControls
import TPresetsManager
import imageenhance

// What can be done with one image, or with the selected ones when it is among them. Keys that are shown are those of
// AppShortcuts, which act on the current image.
PbMenu {
    id: _top

    required property TControls controls
    required property WindowState windowState
    required property AppCommands commands
    required property TPresetsManager presets

    // Reset to the current image whenever the menu opens or closes: it is set after popup().
    property string targetImagePath

    signal autopilotToSelectedAsked
    signal autopilotToIndexAsked(index: int)
    signal currentSettingsToSelectedAsked
    signal currentSettingsToIndexAsked(index: int)
    signal presetToSelectedAsked(name: string)
    signal presetToIndexAsked(name: string, index: int)

    // For an image, or for the current one.
    function showAtPoint(at: point, path = ""): void {
        popup(at.x, at.y);
        if (path !== "")
            targetImagePath = path;
    }

    readonly property RightClickRules _rulesObject: RightClickRules {
        id: _rules
        controls: _top.controls
        windowState: _top.windowState
    }
    readonly property PbMnemonic _mnemonicObject: PbMnemonic {
        id: _mnemonic
    }
    readonly property bool _pluginMode: windowState.pluginMode

    width: 248 // for its longest row and the key
    margins: PebbleStyle.size.spacing
    onVisibleChanged: {
        targetImagePath = controls.currentImage;
        if (visible)
            _rules.evaluate(targetImagePath);
    }
    onTargetImagePathChanged: {
        if (visible)
            _rules.evaluate(targetImagePath);
    }

    PbMenu {
        id: _apply

        title: qsTr("Apply")
        enabled: !_top.windowState.isRefining

        PbMenuItem {
            text: qsTr("Autopilot")
            enabled: _rules.autopilotEnabled
            onTriggered: {
                if (_rules.isTargetSelected)
                    _top.autopilotToSelectedAsked();
                else
                    _top.autopilotToIndexAsked(_rules.index());
            }
        }
        PbMenuItem {
            text: qsTr("Current settings")
            visible: _rules.batchEnabled
            enabled: _rules.currentSettingsEnabled
            onTriggered: {
                if (_rules.isTargetSelected)
                    _top.currentSettingsToSelectedAsked();
                else
                    _top.currentSettingsToIndexAsked(_rules.index());
            }
        }
        PbMenu {
            id: _presets

            title: qsTr("Preset")
            enabled: count > 0

            Instantiator {
                // The linter knows no sets.
                model: Array.from(_top.presets.presets).sort((one, other) => one.localeCompare(other)) // qmllint disable unresolved-type
                onObjectAdded: (index, object) => _presets.insertItem(index, object as PbMenuItem)
                onObjectRemoved: (index, object) => _presets.removeItem(object as PbMenuItem)
                delegate: PbMenuItem {
                    required property string modelData
                    text: _mnemonic.escaped(modelData)
                    onTriggered: {
                        if (_rules.isTargetSelected)
                            _top.presetToSelectedAsked(modelData);
                        else
                            _top.presetToIndexAsked(modelData, _rules.index());
                    }
                }
            }
        }
    }
    PbMenuItem {
        text: qsTr("Open images...")
        visible: !_top._pluginMode
        onTriggered: _top.commands.openFile()
    }
    PbMenuItem {
        text: qsTr("Close image")
        keySequence: _top.windowState.imageOpen && _rules.isCurrentlyPreviewedImage ? "Ctrl+W" : ""
        onTriggered: _top.commands.closeImage(_rules.index())
    }
    PbMenuItem {
        text: qsTr("Close selected images")
        visible: _rules.batchEnabled
        keySequence: "Ctrl+Shift+W"
        onTriggered: _top.commands.closeSelectedImages()
    }
    PbMenuItem {
        text: qsTr("Close all images")
        visible: _rules.batchEnabled
        onTriggered: _top.commands.closeAllImages()
    }
    PbMenuItem {
        text: _top.windowState.helpers.appContext.isMac ? qsTr("Show in finder") : qsTr("Show in explorer")
        visible: !_top._pluginMode
        keySequence: _rules.isCurrentlyPreviewedImage ? "Ctrl+Alt+R" : ""
        onTriggered: _top.commands.showFile(_rules.target)
    }
}
