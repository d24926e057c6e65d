import QtQuick
import QtQuick.Controls.Fusion
import PebbleUI
import imageenhance

// A dialog that opens when its turn has come, and leaves the queue by being answered. In another's place it takes no
// answer for a moment: the second click of a double click was meant for the one before.
PbDialog {
    id: _top

    required property DialogQueue queue
    required property string turn // its name in the queue; empty while it has nothing to say

    readonly property bool due: turn !== "" && queue.current === turn
    readonly property int settleTime: 500 // milliseconds
    readonly property bool settled: !_settling.running

    function answer(accepted: bool): void {
        if (!settled)
            return;
        if (accepted)
            accept();
        else
            reject();
    }

    closePolicy: settled ? Popup.CloseOnEscape : Popup.NoAutoClose
    onDueChanged: {
        if (due)
            open();
        else
            close();
    }
    onAboutToShow: {
        _private.shown = turn;
        if (queue.tookOver)
            _settling.restart();
    }
    onClosed: {
        queue.done(_private.shown);
        if (due)
            open();
    }

    Timer {
        id: _settling
        interval: _top.settleTime
    }

    QtObject {
        id: _private
        property string shown // the turn that it was opened for
    }
}
