import QtQuick
import imageenhance

// The keys of commands.
Item {
    id: _top

    required property AppCommands commands
    required property ImagePreview preview
    required property RightPanel panel
    required property bool active // no dialog is open
    required property WindowState windowState

    readonly property bool _image: active && windowState.imageOpen
    readonly property bool _zooms: _image && !windowState.isCropping
    readonly property bool _selects: _image && !windowState.isRefining
    readonly property int _selected: windowState.controls.selectedImages.length
    readonly property int _loaded: windowState.controls.loadedImages.length

    Shortcut {
        sequences: [StandardKey.Open]
        enabled: _top.active && !_top.windowState.pluginMode
        onActivated: _top.commands.openFile()
    }
    Shortcut {
        sequences: [StandardKey.Paste]
        enabled: _top.active && !_top.windowState.pluginMode
        onActivated: _top.commands.paste()
    }
    Shortcut {
        sequence: "Ctrl+W"
        enabled: _top._image
        onActivated: _top.commands.closeImage()
    }
    Shortcut {
        sequence: "Ctrl+Shift+W"
        enabled: _top._image
        onActivated: _top.commands.closeSelectedImages()
    }
    Shortcut {
        sequence: "Ctrl+Alt+R"
        enabled: _top._image && !_top.windowState.pluginMode
        onActivated: _top.commands.showFile()
    }
    Shortcut {
        sequence: "Alt+F4"
        onActivated: _top.commands.exit()
    }
    Shortcut {
        sequence: "Ctrl+A"
        enabled: _top._selects && _top._selected < _top._loaded
        onActivated: _top.commands.selectAllImages()
    }
    Shortcut {
        sequence: "Ctrl+Shift+A"
        enabled: _top._selects && _top._selected > 1
        onActivated: _top.commands.deselectAllImages()
    }
    Shortcut {
        sequence: "Ctrl+K"
        autoRepeat: false
        enabled: _top._image
        onActivated: _top.panel.toggleEnhancementsPanel()
    }
    Shortcut {
        sequences: [StandardKey.Undo]
        enabled: _top._image && _top.panel.logic.steps.canUndo
        onActivated: _top.panel.logic.steps.undo()
    }
    Shortcut {
        sequences: [StandardKey.Redo]
        enabled: _top._image && _top.panel.logic.steps.canRedo
        onActivated: _top.panel.logic.steps.redo()
    }
    Shortcut {
        sequence: "Ctrl+0"
        enabled: _top._zooms
        onActivated: _top.preview.zoomToFit()
    }
    Shortcut {
        sequence: "Ctrl+1"
        enabled: _top._zooms
        onActivated: _top.preview.resetZoom()
    }
    Shortcut {
        sequences: [StandardKey.ZoomIn, "Ctrl+="]
        enabled: _top._zooms
        onActivated: _top.preview.zoomIn()
    }
    Shortcut {
        sequences: [StandardKey.ZoomOut]
        enabled: _top._zooms
        onActivated: _top.preview.zoomOut()
    }
    Shortcut {
        sequences: [StandardKey.MoveToNextChar]
        enabled: _top._image
        onActivated: _top.commands.rightArrowKey()
    }
    Shortcut {
        sequences: [StandardKey.MoveToPreviousChar]
        enabled: _top._image
        onActivated: _top.commands.leftArrowKey()
    }
}
