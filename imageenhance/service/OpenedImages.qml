import QtQuick
import AppState
import TControls
import TImageIO
import TQmlUtils
import imageenhance

// What follows when the list of open images changes: recent files, thumbnails, the session list, the filmstrip.
QtObject {
    id: _top

    required property TControls controls
    required property AppState appState
    required property OSUtils osUtils
    required property MainSettings settings
    required property bool pluginMode
    // The images in view, and a few on each side. Without a list on the screen, those about the current one.
    property int firstVisible: controls.currentIndex
    property int lastVisible: controls.currentIndex
    readonly property int margin: 2

    readonly property alias recentFiles: _recentFiles
    // More than one image was open after the last opening.
    readonly property alias isFileViewExpanded: _private.fileViewExpanded

    signal opened
    signal lastClosedByHost // the host's only image went: the window goes, too

    function toggleFileView(): void {
        _private.fileViewExpanded = !_private.fileViewExpanded;
    }

    readonly property RecentFiles _recent: RecentFiles {
        id: _recentFiles
        settings: _top.settings
        osUtils: _top.osUtils
        pluginMode: _top.pluginMode
    }

    readonly property TThumbnailWriter _writerObject: TThumbnailWriter {
        id: _writer
        currentIndex: _top.controls.currentIndex
        startIndex: Math.max(0, _top.firstVisible - _top.margin)
        endIndex: Math.max(0, _top.lastVisible + _top.margin)
        onIndexUpdated: Qt.callLater(_writer.startGenerating)
        onThumbnailWritten: (index, path, thumbnail) => _thumbnails.written(index, path, thumbnail)
    }

    readonly property Thumbnails _thumbnailsObject: Thumbnails {
        id: _thumbnails
        controls: _top.controls
        writer: _writer
    }

    readonly property Connections _ofControls: Connections {
        target: _top.controls

        function onImagesOpened(images: var): void {
            _top.opened();
            _recentFiles.opened(images);
            _private.fileViewExpanded = _top.controls.loadedImages.length > 1;
            _private.selectCurrent();
            _thumbnails.refresh();
        }

        function onImagesClosed(): void {
            // The model keeps its index: the next image to be opened would take it and change nothing.
            if (_top.controls.loadedImages.length === 0)
                _top.controls.setCurrentIndex(-1);
            if (_top.pluginMode && _top.controls.loadedImages.length === 0)
                _top.lastClosedByHost();
            _private.selectCurrent();
            _thumbnails.refresh();
        }

        function onImageDataChanged(index: int): void {
            _thumbnails.imageDataChanged(index);
        }

        function onLoadedImagesChanged(): void {
            _top.appState.openFiles = _top.controls.loadedImages;
            _top.appState.saveFileList();
        }
    }

    readonly property QtObject _private: QtObject {
        id: _private
        property bool fileViewExpanded: false

        // A selection is of indices, which another list gives another meaning.
        function selectCurrent(): void {
            const current = _top.controls.currentIndex;
            _top.controls.selectedImages = current >= 0 && current < _top.controls.loadedImages.length ? [current] : [];
        }
    }
}
