import QtQuick
import TControls
import imageenhance

// One function for each command of the window, wherever it comes from: menus, keys, buttons.
QtObject {
    id: _top

    required property TControls controls
    required property RightPanel panel
    required property ClosingQuestions closing
    required property Helpers helpers

    signal openFileDialog
    signal closeWindow

    function openFile(): void {
        openFileDialog();
    }

    // All opening goes through here.
    function loadImages(paths: var): void {
        panel.closeRefineMode();
        controls.loadImages(paths);
    }

    function openRecentFile(file: string): void {
        loadImages([file]);
    }

    function paste(): void {
        const paths = helpers.osUtils.clipboard();
        if (paths.length > 0)
            loadImages(paths);
        else
            console.info("Nothing to open on the clipboard");
    }

    function closeImage(index = controls.currentIndex): void {
        closing.closeImage(index);
    }

    function closeSelectedImages(): void {
        closing.closeSelectedImages();
    }

    function closeAllImages(): void {
        closing.closeAllImages();
    }

    function showFile(path = controls.currentImage): void {
        helpers.osUtils.showFileInGraphicalShell(path);
    }

    function selectAllImages(): void {
        controls.selectedImages = controls.loadedImages.map((path, index) => index);
    }

    // The current image alone stays selected.
    function deselectAllImages(): void {
        controls.selectedImages = [controls.currentIndex];
    }

    // A selection of one follows.
    function step(by: int): void {
        const index = controls.currentIndex + by;
        if (index < 0 || index >= controls.loadedImages.length)
            return;
        if (controls.selectedImages.length < 2)
            controls.selectedImages = [index];
        controls.setCurrentIndex(index);
    }

    function leftArrowKey(): void {
        step(-1);
    }

    function rightArrowKey(): void {
        step(1);
    }

    function openUrl(url: string): void {
        Qt.openUrlExternally(url);
    }

    function openLogDir(): void {
        helpers.osUtils.openFolder(helpers.appContext.logDirectory);
    }

    function openPresetsDir(): void {
        helpers.osUtils.openFolder(helpers.appContext.presetsDirectory);
    }

    function exit(): void {
        closeWindow();
    }
}
