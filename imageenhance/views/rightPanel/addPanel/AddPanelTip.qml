import QtQuick
import PebbleUI

// The tooltip of the entry that has the keyboard. There is one cursor, whoever moves it, so hovering counts for nothing.
QtObject {
    id: _top

    required property Item entry // null: none
    required property Item panel // the tip lies beside it
    required property string text

    readonly property string _shown: entry ? text : ""

    // Also to move it to where its entry is now.
    function update(): void {
        _private.hide();
        _private.plane = PebbleStyle.tooltipPlane as PbTooltipPlane;
        if (!_top.entry || _top._shown === "" || !_private.plane)
            return;
        _private.tipId = _private.plane.showTip({
            "target": _top.entry,
            "targetForX": _top.panel,
            "text": _top._shown,
            "textFormat": Text.RichText,
            "alignment": PbTooltipPlane.Alignment.Left
        });
    }

    on_ShownChanged: update()
    onEntryChanged: update()
    Component.onDestruction: _private.hide()

    readonly property QtObject _private: QtObject {
        id: _private

        property PbTooltipPlane plane: null
        property int tipId: -1

        function hide(): void {
            plane?.hideTip(tipId);
            plane = null;
        }
    }
}
