import QtQuick
import QtQuick.Controls
import TNetwork
import TQmlUtils
import imageenhance

// The usage event of a start, a while after the window is shown.
Timer {
    id: _top

    required property TEventTracker tracker
    required property OSUtils osUtils
    required property ApplicationWindow appWindow
    required property MainSettings settings

    interval: 5000
    onTriggered: tracker.track("Application Started", {
        "width": appWindow.width,
        "height": appWindow.height,
        "devices": osUtils.getAIProcessors(),
        "preferences": _private.preferences()
    })

    readonly property QtObject _private: QtObject {
        id: _private

        // How the program is set up; nothing that names files, folders or the user.
        function preferences(): var {
            const reported = {};
            for (const key of Object.keys(_top.settings)) {
                if (/^autopilot|^(colorScheme|deviceId|lastViewMode|defaultCanUploadImages|saveImageFormat)$/.test(key) && typeof _top.settings[key] !== "function")
                    reported[key] = _top.settings[key];
            }
            return reported;
        }
    }
}
