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
    readonly property alias hovered: _hover.hovered

    // The control whose keyboard focus shows the tip too.
    property Item focusTarget: parent

    readonly property bool _filled: title !== "" || text !== ""
    readonly property bool _focused: {
        const control = focusTarget as T.Control;
        if (control !== null)
            return control.visualFocus;
        const field = focusTarget as T.TextField;
        return field !== null && field.activeFocus
            && (field.focusReason === Qt.TabFocusReason || field.focusReason === Qt.BacktabFocusReason);
    }
    readonly property bool _wanted: _filled && visible && (hovered || _focused)

    anchors.fill: parent
    enabled: false

    on_WantedChanged: _private.update()
    onTitleChanged: _private.update()
    onTextChanged: _private.update()
    Component.onDestruction: _private.hide()

    HoverHandler {
        id: _hover
        enabled: _top._filled
    }

    QtObject {
        id: _private

        property PbTooltipPlane shownIn: null
        property int tipId: -1

        function update(): void {
            hide();
            // The texts are asked once more: they may have emptied a moment before `_wanted` follows.
            if (!_top._wanted || (_top.title === "" && _top.text === ""))
                return;
            shownIn = _top.plane as PbTooltipPlane;
            if (!shownIn) {
                console.warn("PbHoverTip configured without tooltip plane!!");
                return;
            }
            tipId = shownIn.showTip({
                target: _top.target, targetForX: _top.targetForX, targetForY: _top.targetForY,
                title: _top.title, text: _top.text, textFormat: _top.textFormat, alignment: _top.alignment,
                offsetX: _top.offsetX, offsetY: _top.offsetY, hugContents: _top.hugContents,
            });
        }

        function hide(): void {
            shownIn?.hideTip(tipId);
            shownIn = null;
        }
    }
}
