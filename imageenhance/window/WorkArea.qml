pragma ComponentBehavior: Bound
import QtQuick
import PebbleUI
import imageenhance

// What is under the title bar: preview and right panel, or the welcome screen, and the highlight of a drag over it.
Item {
    id: _top

    required property Item preview // ImagePreview
    required property Item panel // RightPanel
    required property WindowState windowState
    required property var imageUtils // TImageUtils
    required property RecentFiles recentFiles
    required property AppCommands commands
    required property BaseTheme theme

    signal browseImages

    Item {
        id: _work

        anchors.fill: parent
        visible: _top.windowState.imageOpen
        Component.onCompleted: {
            _top.panel.parent = _work;
            _top.preview.parent = _previewSlot;
            _top.preview.anchors.fill = _previewSlot;
            _top.panel.anchors.right = _work.right;
            _top.panel.anchors.top = _work.top;
            _top.panel.anchors.bottom = _work.bottom;
        }

        Item {
            id: _previewSlot

            anchors { left: parent.left; right: parent.right; top: parent.top; bottom: parent.bottom }
            anchors.rightMargin: _top.panel.width
            visible: !_top.windowState.hidesPreview
        }
    }

    Loader {
        anchors.fill: parent
        active: !_top.windowState.imageOpen
        onActiveChanged: _top.recentFiles.clean()
        sourceComponent: WelcomeScreen {
            recentFiles: _top.recentFiles.list
            imageUtils: _top.imageUtils
            dropEnabled: !_top.windowState.pluginMode
            onBrowseImages: _top.browseImages()
            onOpenRecentFile: path => _top.commands.openRecentFile(path)
            onClearRecentFiles: _top.recentFiles.clear()
            onOpenUrl: url => _top.commands.openUrl(url)
        }
    }

    DropArea {
        id: _drop

        anchors.fill: parent
        enabled: _top.windowState.imageOpen && !_top.windowState.isExporting && !_top.windowState.pluginMode

        Rectangle {
            anchors.fill: parent
            visible: _drop.containsDrag && !_drop.drag.source
            color: _top.theme.primary50
            opacity: 0.5
        }
    }
}
