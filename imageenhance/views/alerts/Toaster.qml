pragma ComponentBehavior: Bound
import QtQuick
import PebbleUI
import imageenhance

// Short messages at the window's upper right corner, the oldest on top. Nothing waits for them.
Item {
    id: _top

    enum Type { Info, Warn, InpaintWarn, Error }

    readonly property int timeoutDefault: 15000
    readonly property int timeoutNone: -1
    readonly property int count: _toasts.count

    // Without types: functions pass through it.
    function queue(options) {
        return _toasts.queue(options);
    }

    function warn(title: string, message: string): void {
        queue({
            "title": title,
            "message": message,
            "type": Toaster.Type.Warn
        });
    }

    visible: _toasts.count > 0
    implicitWidth: 320
    implicitHeight: _list.contentHeight

    ToastList {
        id: _toasts
        timeoutDefault: _top.timeoutDefault
    }

    ListView {
        id: _list

        anchors.fill: parent
        interactive: false
        spacing: PebbleStyle.size.spacing
        model: _toasts.model
        delegate: ToastView {
            width: _list.width
            z: -index
            onGone: _toasts.dismiss(index)
        }
    }
}
