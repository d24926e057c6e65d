pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import PebbleUI

// Laid over an area, shows a tooltip while the pointer is over it, and while the control that it lies in
// has the keyboard by way of the keyboard. Disabled, so that clicks pass.
Item {
    id: _top

    property Item target: parent
    property Item targetForX: null
    property Item targetForY: null
    property string title: ""
    property string text: ""

    // Plain unless told otherwise, so that text from outside cannot become markup.
    property int textFormat: Text.PlainText
    property int alignment: PbTooltipPlane.Alignment.Top
    property real offsetX: 0
    property real offsetY: 0
    property Item plane: PebbleStyle.tooltipPlane
    property bool hugContents: false
    readonly property bool hovered: _hover?.hovered ?? false

    // The control whose keyboard focus shows the tip too.
    property Item focusTarget: parent

    readonly property bool _filled: title !== "" || text !== ""
    readonly property bool _wanted: _filled && visible && (hovered || _focused())

    // Made when there is something to show: most controls of a panel have no tip.
    property HoverHandler _hover: null
    property PbTooltipPlane _shownIn: null
    property int _tipId: -1

    function _focused(): bool {
        const control = focusTarget as T.Control;
        if (control !== null)
            return control.visualFocus;
        const field = focusTarget as T.TextField;
        return field !== null && field.activeFocus
            && (field.focusReason === Qt.TabFocusReason || field.focusReason === Qt.BacktabFocusReason);
    }

    function _update(): void {
        _hide();
        // The texts are asked once more: they may have emptied a moment before `_wanted` follows.
        if (!_wanted || (title === "" && text === ""))
            return;
        _shownIn = plane as PbTooltipPlane;
        if (!_shownIn) {
            console.warn("PbHoverTip configured without tooltip plane!!");
            return;
        }
        _tipId = _shownIn.showTip({
            target: target, targetForX: targetForX, targetForY: targetForY,
            title: title, text: text, textFormat: textFormat, alignment: alignment,
            offsetX: offsetX, offsetY: offsetY, hugContents: hugContents,
        });
    }

    function _hide(): void {
        _shownIn?.hideTip(_tipId);
        _shownIn = null;
    }

    anchors.fill: parent
    enabled: false

    on_FilledChanged: {
        if (_filled && !_hover)
            _hover = _handler.createObject(_top) as HoverHandler;
    }
    on_WantedChanged: _update()
    onTitleChanged: _update()
    onTextChanged: _update()
    Component.onDestruction: _hide()

    Component {
        id: _handler

        HoverHandler {
            enabled: _top._filled
        }
    }
}
