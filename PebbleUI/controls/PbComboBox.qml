pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import PebbleUI

// A choice of one among rows: `{ text, value, secondary }` under the roles named, or plain values. Return,
// Enter, F4 and Alt with an arrow open the list. Space is swallowed: programs use it as a shortcut.
T.ComboBox {
    id: _top

    enum Outline { None, Warning, Error }
    enum Type { Default, Compact }

    property url iconSource
    property real iconSize: PebbleStyle.size.icon
    property int textAlignment: Text.AlignLeft
    property int textElide: Text.ElideRight

    // The value that Autopilot proposes; its row has the dot. Null: none.
    property var autoValue: null
    property int outline: PbComboBox.Outline.None
    property int type: PbComboBox.Type.Default
    property bool busy: false
    property string secondaryRole: "secondary"
    property alias tooltip: _tip
    readonly property alias rows: _rows

    property int _openedBy: 0

    signal opened()

    // Goes to the row of that value; to the first when there is none.
    function setValue(value: var): void {
        PbBoundProperty.write(_top, "currentIndex", Math.max(0, _rows.indexOf(value, valueRole)));
    }

    // The ring that shows where the keyboard is.
    function focusRing(): PbFocusRing {
        return PbFocusRings.of(_top, background, PebbleStyle.size.smallRadius);
    }

    textRole: _rows.isPlain ? "" : "text"
    valueRole: _rows.isPlain ? "" : "value"
    implicitWidth: PebbleStyle.size.comboWidth
    implicitHeight: type === PbComboBox.Type.Compact ? PebbleStyle.size.comboHeightCompact : PebbleStyle.size.comboHeight
    leftPadding: PebbleStyle.size.spacing
    rightPadding: PebbleStyle.size.spacing + indicator.width + spacing
    topPadding: 0
    bottomPadding: 0
    spacing: PebbleStyle.size.spacingSmall
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    Accessible.name: _tip.text
    Accessible.description: displayText

    Keys.onPressed: event => {
        const opens = event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_F4
            || (event.modifiers & Qt.AltModifier && (event.key === Qt.Key_Down || event.key === Qt.Key_Up));
        if (event.key === Qt.Key_Space) {
            event.accepted = true;
        } else if (opens && !popup.visible) {
            event.accepted = true;
            _openedBy = event.key;
            popup.open();
        }
    }
    // When a key is let go the toolkit opens the list (Space) or chooses from it (Return): not with the
    // same stroke that opened it.
    Keys.onReleased: event => {
        event.accepted = event.key === Qt.Key_Space || event.key === _openedBy;
        _openedBy = 0;
    }

    onVisualFocusChanged: focusRing()

    background: PbComboFrame {
        active: _top.hovered || _top.down
        outlineColor: _top.outline === PbComboBox.Outline.Error ? PebbleStyle.color.darkRed
                    : _top.outline === PbComboBox.Outline.Warning ? PebbleStyle.color.warningYellow : PebbleStyle.color.clear
    }

    contentItem: PbComboFace {
        iconSource: _top.iconSource
        iconSize: _top.iconSize
        text: _top.displayText
        horizontalAlignment: _top.textAlignment
        elide: _top.textElide
    }

    indicator: PbComboIndicator {
        x: _top.width - width - PebbleStyle.size.spacing
        y: (_top.height - height) / 2
        busy: _top.busy
    }

    popup: PbComboPopup {
        box: _top
        onOpened: _top.opened()
    }

    delegate: PbComboRow {
        required property int index

        width: ListView.view?.width ?? 0
        text: _rows.text(index, _top.textRole)
        secondary: _rows.isPlain ? "" : _rows.text(index, _top.secondaryRole)
        current: _top.currentIndex === index
        highlighted: _top.highlightedIndex === index
        withDot: _top.autoValue !== null
        isAuto: withDot && _rows.read(index, _top.valueRole) === _top.autoValue
    }

    PbRowReader {
        id: _rows
        model: _top.model
    }

    PbHoverTip {
        id: _tip
    }
}
