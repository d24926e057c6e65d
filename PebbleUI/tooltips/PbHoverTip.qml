pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import PebbleUI

// Laid over an area, shows a tooltip while the pointer is over it, and while the control that it lies in
// got the focus from the keyboard. Disabled, so that clicks pass.
Item {
    id: _top

    property Item target: parent
    property Item targetForX: null
    property Item targetForY: null
    property string title: ""
    property string text: ""

    // Plain unless set otherwise, so that text from outside cannot become markup.
    property int textFormat: Text.PlainText
    property int alignment: PbTooltipPlane.Alignment.Top
    property real offsetX: 0
    property real offsetY: 0
    property Item plane: PebbleStyle.tooltipPlane
    property bool hugContents: false
    readonly property bool hovered: _watch?.hovered ?? false

    // The control whose keyboard focus shows the tip too; null for the item that the tip lies in.
    property Item focusTarget: null

    readonly property bool _filled: title !== "" || text !== ""

    // Made when there is something to show: most controls of a panel have no tip.
    property HoverHandler _watch: null

    anchors.fill: parent
    enabled: false

    on_FilledChanged: {
        if (_filled && !_watch)
            _watch = _watcher.createObject(_top) as HoverHandler;
    }

    Component {
        id: _watcher

        HoverHandler {
            id: _hover

            readonly property bool wanted: enabled && _top.visible && (hovered || _focused())
            property PbTooltipPlane shownIn: null
            property int tipId: -1

            readonly property Connections _texts: Connections {
                target: _top

                function onTitleChanged(): void {
                    _hover.update();
                }

                function onTextChanged(): void {
                    _hover.update();
                }
            }

            function _focused(): bool {
                const item = _top.focusTarget ?? _top.parent;
                const control = item as T.Control;
                if (control !== null)
                    return control.visualFocus;
                const field = item as T.TextField;
                return field !== null && field.activeFocus
                    && (field.focusReason === Qt.TabFocusReason || field.focusReason === Qt.BacktabFocusReason);
            }

            function update(): void {
                hide();
                // The texts are asked once more: they may have emptied a moment before `wanted` follows.
                if (!wanted || (_top.title === "" && _top.text === ""))
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

            enabled: _top._filled
            onWantedChanged: update()
            Component.onDestruction: hide()
        }
    }
}
