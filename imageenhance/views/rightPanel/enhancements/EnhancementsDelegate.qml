import QtQuick
import PebbleUI
import imageenhance
import "../../../utils/enhancementRow.mjs" as Rules
import "../../../utils/filterStack.mjs" as Stack
import "../../../utils/reasons.mjs" as Reasons

// A row of the column: one filter. What the keyboard does to it is the list's.
Item {
    id: _top

    required property string adjustedFilterName
    required property string parentCategory
    required property string displayText
    required property string iconSource
    required property int mode // EnhancementsModel.Mode

    required property RightPanelState panelState
    required property EnhancementActions actions
    required property RowDrag drag
    required property var filter // the filter's record
    required property bool collapsed
    required property bool starting // the engine is at the beginning of a run
    required property bool focused

    readonly property bool locked: Boolean(filter.params?.locked)
    readonly property bool filterEnabled: Boolean(filter.enabled)
    readonly property bool open: panelState.refiningFilter === adjustedFilterName
    readonly property bool dragged: drag.filterName === adjustedFilterName
    readonly property string subLine: Rules.subLine(parentCategory, filter, panelState.controls.categories)
    readonly property string reason: mode === EnhancementsModel.Mode.Autopilot ? Reasons.sentence(parentCategory, panelState.problems?.reasons?.[parentCategory]) : ""

    signal menuRequested

    readonly property bool _isRaw: parentCategory === panelState.controls.categories.raw
    readonly property bool _hovered: _hover.hovered && !drag.active
    readonly property bool _tools: !collapsed && !_isRaw && !dragged
    readonly property bool _showsRemove: _tools && _hovered && !locked
    readonly property bool _showsVisibility: _tools && ((_hovered && !locked) || !filterEnabled)
    readonly property bool _spins: Rules.showsSpinner(starting, open, panelState.expandedFilter, filterEnabled, locked)
    readonly property color _ink: !filterEnabled || locked ? PebbleStyle.color.lightGray : open || _hovered ? PebbleStyle.color.textHoverLight : PebbleStyle.color.textLight
    readonly property string _info: {
        const names = panelState.controls.categories;
        if (parentCategory === names.enhance)
            return qsTr("Upscale is always processed last");
        const converts = panelState.isRaw && [names.exposure, names.whiteBalance].includes(parentCategory);
        return converts ? qsTr("RAW images will be converted to TIFF <br>when exporting with this enhancement") : "";
    }
    readonly property bool _movable: Stack.isMovable(adjustedFilterName, parentCategory, locked)

    height: 49
    z: dragged ? 2 : 0
    Accessible.role: Accessible.ListItem
    Accessible.name: [displayText, subLine, locked ? qsTr("locked") : "", filterEnabled ? "" : qsTr("hidden")].filter(part => part !== "").join(", ")
    Accessible.description: reason
    Accessible.focusable: true
    Accessible.focused: focused
    Accessible.onPressAction: _mouse.activate()

    Item {
        id: _content

        y: _top.dragged ? _top.drag.y - _top.y : 0
        width: parent.width
        height: 48

        PbBox {
            anchors.fill: parent
            color: _top.open || _top.dragged ? PebbleStyle.color.darkGray : _top._hovered && !_top.locked ? PebbleStyle.color.darkerGray : PebbleStyle.color.panelBkg
        }
        HoverHandler {
            id: _hover
        }
        MouseArea {
            id: _mouse

            property real pressedAt: 0

            function activate(): void {
                if (!_top.locked)
                    _top.actions.togglePanel(_top.adjustedFilterName);
            }

            function follow(mouseY: real): void {
                const y = mapToItem(_top.parent, 0, mouseY).y;
                if (!_top.dragged && (!_top._movable || Math.abs(mouseY - pressedAt) < Application.styleHints.startDragDistance || !_top.drag.begin(_top.adjustedFilterName)))
                    return;
                _top.drag.moveTo(y - pressedAt);
            }

            anchors.fill: parent
            enabled: !_top.locked
            acceptedButtons: Qt.LeftButton | Qt.RightButton
            preventStealing: true
            onPressed: mouse => pressedAt = mouse.y
            onPositionChanged: mouse => {
                if (mouse.buttons & Qt.LeftButton)
                    follow(mouse.y);
            }
            onReleased: mouse => {
                if (_top.dragged)
                    _top.drag.drop();
                else if (!containsMouse)
                    return;
                else if (mouse.button === Qt.RightButton)
                    _top.menuRequested();
                else if (Math.abs(mouse.y - pressedAt) < Application.styleHints.startDragDistance)
                    activate();
            }
            onCanceled: {
                if (_top.dragged)
                    _top.drag.cancel();
            }
        }

        PbIcon {
            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            visible: !_top.collapsed && _top._movable && (_top._hovered || _top.dragged)
            iconSource: PebbleStyle.icon.dragHandle
            color: PebbleStyle.color.lightGray
        }
        PbIcon {
            x: 16
            anchors.verticalCenter: parent.verticalCenter
            opacity: _top._spins ? 0 : 1
            iconSource: _top.locked ? PebbleStyle.icon.selectionSlash : _top.iconSource
            color: _top._ink
        }
        PbBusySpinner {
            x: 16
            anchors.verticalCenter: parent.verticalCenter
            size: PebbleStyle.size.icon
            running: _top._spins
        }
        Column {
            id: _texts

            readonly property real end: _top._showsRemove || _top._showsVisibility ? 96 : PebbleStyle.size.spacing
            readonly property real room: parent.width - x - end

            x: 40
            anchors.verticalCenter: parent.verticalCenter
            visible: !_top.collapsed

            Row {
                spacing: PebbleStyle.size.spacing

                PbText {
                    width: Math.min(implicitWidth, _texts.room - (_note.visible ? _note.width + PebbleStyle.size.spacing : 0))
                    text: _top.displayText
                    type: PbLabel.Type.Title
                    color: _top._ink
                }
                RowInfo {
                    id: _note
                    visible: text !== ""
                    text: _top._info
                    size: 14
                    onClicked: {
                        if (!_top.locked)
                            _top.actions.showRefinePanel(_top.adjustedFilterName, true);
                    }
                }
            }
            RowSubLine {
                visible: text !== ""
                width: Math.min(implicitWidth, _texts.room)
                text: _top.subLine
                panelState: _top.panelState
                actions: _top.actions
                filterName: _top.adjustedFilterName
                parentCategory: _top.parentCategory
                enabled: !_top.locked
            }
        }
        RowButton {
            id: _visibility
            anchors { right: parent.right; rightMargin: 48; top: parent.top; bottom: parent.bottom }
            visible: _top._showsVisibility
            enabled: !_top.locked
            iconSource: _top.filterEnabled ? PebbleStyle.icon.eyeOpen : PebbleStyle.icon.eyeClosed
            text: _top.filterEnabled ? qsTr("Hide") : qsTr("Show")
            color: _top._ink
            onClicked: _top.actions.toggleEnabled(_top.adjustedFilterName)
        }
        RowButton {
            id: _remove
            anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
            visible: _top._showsRemove
            iconSource: PebbleStyle.icon.close
            text: qsTr("Remove")
            color: _top._ink
            onClicked: _top.actions.remove(_top.adjustedFilterName)
        }
        Rectangle {
            anchors { fill: parent; margins: 1 }
            visible: _top.focused
            color: PebbleStyle.color.clear
            border { width: PebbleStyle.size.focusRing; color: PebbleStyle.color.focusRing }
        }
        PbHoverTip {
            readonly property bool silent: _top.open || _top.drag.active || _visibility.hovered || _remove.hovered || _note.hovered

            title: silent || !_top.collapsed ? "" : _top.subLine === "" ? _top.displayText : _top.displayText + " - " + _top.subLine
            text: silent ? "" : _top.reason
            alignment: PbTooltipPlane.Alignment.Left
            hugContents: true
        }
    }
    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: PebbleStyle.size.border
        color: PebbleStyle.color.darkGray
    }
}
