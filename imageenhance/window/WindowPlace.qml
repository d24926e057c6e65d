import QtQuick
import QtQuick.Controls
import AppContext
import TQmlUtils
import imageenhance

// Where the window is and whether it is maximized, from one session to the next.
QtObject {
    id: _top

    required property ApplicationWindow appWindow
    required property AppContext appContext
    required property OSUtils osUtils
    required property MainSettings settings

    // The height by which a native title bar would push the content down.
    readonly property int nativeTitleBar: 31

    function restoreGeometry(): void {
        const saved = settings.windowGeometry;
        let place = Qt.rect(saved.x, saved.y, saved.width, saved.height);
        if (appContext.isWindows)
            place.y = Math.max(place.y, 0) + nativeTitleBar;
        osUtils.setGeometry(place);
    }

    function restoreVisibility(): void {
        _private.previous = settings.windowVisibility;
        if (appContext.isMac && settings.windowVisibility === Window.FullScreen)
            appWindow.showFullScreen();
        else
            appWindow.visibility = settings.windowVisibility;
    }

    function visibilityChanged(visibility: int): void {
        if (visibility === Window.Windowed && _private.previous === Window.Minimized)
            _private.restoreState();
        else if (visibility !== Window.Hidden && visibility !== Window.Minimized)
            settings.windowVisibility = visibility;
        _private.previous = visibility;
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property int previous: Window.Windowed

        // Setting `visibility` alone does not change the state of a window that comes back.
        function restoreState(): void {
            if (_top.settings.windowVisibility === Window.Maximized)
                _top.appWindow.showMaximized();
            else if (_top.settings.windowVisibility === Window.FullScreen)
                _top.appWindow.showFullScreen();
        }
    }
}
