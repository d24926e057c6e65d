import QtQuick
import TQmlUtils
import imageenhance

// Whether the window may close. It may when no image is open, after the user has confirmed, and after an export.
QtObject {
    id: _top

    required property bool imageOpen
    required property MainSettings settings
    required property OSUtils osUtils

    readonly property bool allowExit: !_top.imageOpen || _private.warningShown

    signal askToQuit
    signal closeWindow
    // The close was accepted; last things are done now.
    signal leaving

    // True when the window may close now.
    function mayClose(): bool {
        _top.settings.windowGeometry = _top.osUtils.geometry();
        if (!_top.allowExit) {
            _top.askToQuit();
            return false;
        }
        _top.leaving();
        return true;
    }

    function confirm(): void {
        _private.warningShown = true;
        _top.closeWindow();
    }

    function exportFinished(): void {
        _private.warningShown = true;
    }

    function imagesOpened(): void {
        _private.warningShown = false;
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property bool warningShown: false
    }
}
