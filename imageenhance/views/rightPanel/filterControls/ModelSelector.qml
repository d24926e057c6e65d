pragma ComponentBehavior: Bound

import QtQuick
import PebbleUI
import "../../../utils/filterModels.mjs" as Models

// The choice among a filter's models, of those that the catalogue lists. A double click on the label, or Delete or
// Backspace, goes back to Autopilot's model, without one to the first.
FocusScope {
    id: _top

    required property FilterControl control
    required property var entries // { text, value, model } each
    required property string current // the value that is chosen; one that is not offered selects nothing
    required property string suggested // Autopilot's value; empty: none
    property int columns: 1
    property bool choosable: true // else the tip alone is left, which says why
    property string tip: "" // rich text

    signal chosen(string value)

    readonly property var _offered: Models.offered(entries, control.controls.modelNames[control.parentCategory])

    function reset(): void {
        if (!choosable || _offered.length === 0)
            return;
        _grid.reset();
        chosen(_offered[_grid.selectedItem].value);
    }

    visible: !choosable || _offered.length > 0
    enabled: !control.locked
    width: parent?.width ?? 0
    implicitHeight: _column.implicitHeight
    Keys.onDeletePressed: reset()
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Backspace) {
            event.accepted = true;
            reset();
        }
    }

    Column {
        id: _column
        width: parent.width
        spacing: PebbleStyle.size.spacing

        PbLabel {
            id: _label
            text: qsTr("AI model")
            enabled: _top.enabled

            TapHandler {
                onTapped: {
                    if (_clicks.press(Date.now()))
                        _top.reset();
                }
            }
            Loader {
                anchors { left: parent.right; leftMargin: PebbleStyle.size.spacingSmall; verticalCenter: parent.verticalCenter }
                active: !_top.choosable
                sourceComponent: PbButton {
                    compact: true
                    type: PbButton.Type.Tertiary
                    iconSource: PebbleStyle.icon.info
                    Accessible.name: _label.text
                    Accessible.description: _top.tip
                }
            }
        }
        PbGridSelect {
            id: _grid
            width: parent.width
            visible: _top.choosable
            column: _top.columns
            model: _top._offered
            selectedItem: _top._offered.findIndex(entry => entry.value === _top.current)
            autoValue: _top._offered.findIndex(entry => entry.value === _top.suggested)
            Accessible.name: _label.text
            onActivated: index => _top.chosen(_top._offered[index].value)
        }
    }

    PbDoublePress {
        id: _clicks
        interval: PebbleStyle.time.doublePress
    }

    PbHoverTip {
        text: _top.tip
        textFormat: Text.StyledText
        alignment: _top.control.tipSide
        offsetX: _top.control.tipOffset
        focusTarget: _top.activeFocus ? _top.Window.activeFocusItem : null
    }
}
