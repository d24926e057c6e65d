pragma ComponentBehavior: Bound
import QtQuick
import PebbleUI
import imageenhance

// "Add enhancements": presets, filters and Autopilot in a list beside the right panel. Lies in a layer over the work
// area; says by signals what was chosen and changes nothing itself.
FocusScope {
    id: _top

    required property list<string> presets // in any order
    required property FilterVocabulary vocabulary
    required property int faceCount // -1: not looked for
    required property bool stackHasEnhance
    required property int noiseLevel // Autopilot::Level
    required property int blurLevel
    required property bool shiftHeld
    required property bool resizingSupported
    required property bool psFilter
    required property bool panelCollapsed // a change closes this
    required property real windowHeight
    required property real filesListHeight
    required property Item anchorItem // the button that the pointer points to
    property Item edge: anchorItem // this lies to its left
    property real bottomLimit: parent?.height ?? 0 // of the working column, in the layer

    readonly property alias open: _private.open
    readonly property real _layerWidth: parent?.width ?? 0

    signal closeRefineMode // goes before opening
    signal addFilter(string category, bool openPanel)
    signal upscaleAdded // by hand; before it is added
    signal switchEditMode(int mode)
    signal genAILockWarningWanted(string category) // after it was added
    signal loadPreset(string name, bool keepOpen)
    signal editPreset(string name)
    signal deletePreset(string name)
    signal applyAutopilot
    signal focusWanted // closed while it had the keyboard

    function show(): void {
        if (open)
            return;
        closeRefineMode();
        _private.used = true;
        _private.open = true;
        _list.layOut();
        updatePosition();
        clearFocus();
    }

    function hide(): void {
        if (!open)
            return;
        const hadFocus = activeFocus || _list.menuOpen;
        _list.closeMenu();
        _private.open = false;
        _rest.focus = true; // hiding alone leaves the keyboard with the entry
        if (hadFocus)
            focusWanted();
    }

    function toggle(): void {
        if (open)
            hide();
        else
            show();
    }

    function updatePosition(): void {
        if (!parent)
            return;
        const button = anchorItem.mapToItem(parent, Qt.rect(0, 0, anchorItem.width, anchorItem.height));
        const left = edge.mapToItem(parent, Qt.point(0, 0)).x;
        const overrun = button.y + height - bottomLimit;
        x = Math.round(left - width - PebbleStyle.size.pivotHeight - PebbleStyle.size.spacingSmall);
        y = Math.round(Math.max(0, overrun > 0 ? button.y - overrun - 10 : button.y));
        _private.pointerY = button.y + button.height / 2 - y;
    }

    function focusFirstItem(): void {
        show();
        _list.take(0);
    }

    function focusApplyAutopilot(): void {
        show();
        _list.take(_table.indexOf(AddPanelTable.Kind.Autopilot, ""));
    }

    function focusPreset(preset: string): void {
        show();
        _list.take(_table.indexOf(AddPanelTable.Kind.Preset, preset));
    }

    function focusRemove(): void {
        show();
        _list.take(_table.indexOf(AddPanelTable.Kind.Filter, vocabulary.controls.categories.inpaint));
    }

    // No entry is lit; the keys still come here.
    function clearFocus(): void {
        if (open)
            _rest.forceActiveFocus();
    }

    width: 215
    height: {
        const menuBar = Qt.platform.os === "windows" ? PebbleStyle.size.menuBar : 0;
        const previewControls = 48;
        return Math.max(0, Math.min(_list.contentHeight + 12, windowHeight - PebbleStyle.size.windowHeader - menuBar - previewControls - filesListHeight - 2));
    }
    visible: open
    Accessible.role: Accessible.PopupMenu
    Accessible.name: qsTr("Add enhancements")
    onHeightChanged: _private.follow()
    onBottomLimitChanged: _private.follow()
    on_LayerWidthChanged: _private.follow()
    onPanelCollapsedChanged: hide()
    onActiveFocusChanged: Qt.callLater(_private.hideWithoutFocus)
    Keys.enabled: open
    Keys.onEscapePressed: hide()
    Keys.onPressed: event => event.accepted = _list.key(event.key, event.modifiers)

    AddPanelTable {
        id: _table
        presets: _top.presets
        vocabulary: _top.vocabulary
    }
    AddPanelTips {
        id: _tips
        names: _top.vocabulary.controls.categories
        faceCount: _top.faceCount
        stackHasEnhance: _top.stackHasEnhance
        noiseLevel: _top.noiseLevel
        blurLevel: _top.blurLevel
        resizingSupported: _top.resizingSupported
        psFilter: _top.psFilter
    }
    AddPanelFrame {
        anchors.fill: parent
        pointerY: _private.pointerY
    }
    AddPanelList {
        id: _list
        anchors { fill: parent; margins: 6 }
        rows: _private.used ? _table.rows : []
        table: _table
        tips: _tips
        tipEdge: _top
        onChosen: row => _private.choose(row)
        onEditPreset: name => _top.editPreset(name)
        onDeletePreset: name => _top.deletePreset(name)
        onMenuClosed: _private.hideWithoutFocus()
    }
    Item {
        id: _rest
    }

    QtObject {
        id: _private

        property bool open: false
        property bool used: false // the entries are made at the first opening
        property real pointerY: 0

        function follow(): void {
            if (open)
                Qt.callLater(_top.updatePosition);
        }

        function hideWithoutFocus(): void {
            if (!_top.activeFocus && !_list.menuOpen)
                _top.hide();
        }

        function choose(row: var): void {
            const keepOpen = _top.shiftHeld;
            if (row.kind === AddPanelTable.Kind.Autopilot) {
                _top.applyAutopilot();
                return;
            }
            if (row.kind === AddPanelTable.Kind.Preset) {
                _top.loadPreset(row.name, keepOpen);
                if (!keepOpen)
                    _top.hide();
                return;
            }
            if (row.name === _top.vocabulary.controls.categories.enhance)
                _top.upscaleAdded();
            const openPanel = !row.staysShut || !keepOpen;
            _top.addFilter(row.name, openPanel);
            if (row.editMode !== EditMode.None)
                _top.switchEditMode(row.editMode);
            if (row.name === _top.vocabulary.controls.categories.inpaint)
                _top.genAILockWarningWanted(row.name);
            if (openPanel)
                _top.hide();
        }
    }
}
