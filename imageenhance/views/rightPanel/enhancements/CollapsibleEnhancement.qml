pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import PebbleUI
import imageenhance

// A refine panel as it is seen: a header to drag it by, and under it what is set. Keeps clicks from the picture beneath.
FocusScope {
    id: _top

    required property EnhancementActions actions
    required property RefinePlacement placement
    required property string title
    required property url iconSource
    required property bool open
    required property bool hideControls
    required property bool hideSelection
    required property Component content

    readonly property bool nearLeftEdge: placement.nearLeftEdge
    readonly property bool canReattach: placement.canReattach
    readonly property bool maskingView: actions.maskingView

    readonly property real _margin: PebbleStyle.size.spacingLarge

    implicitHeight: _header.height + _content.implicitHeight + 2 * _margin + 12 - PebbleStyle.size.border
    Accessible.role: Accessible.Pane
    Accessible.name: title
    Keys.onEscapePressed: {
        actions.closePanel();
        actions.listFocusWanted();
    }

    PanelShadow {
        visible: !_top.placement.docked
    }
    PbBox {
        anchors.fill: parent
        radius: _top.placement.docked ? 0 : PebbleStyle.size.smallRadius
        color: PebbleStyle.color.panelBkg
        border { width: PebbleStyle.size.border; color: PebbleStyle.color.darkGray }
    }
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onWheel: wheel => wheel.accepted = true
    }
    DraggableHeader {
        id: _header

        width: parent.width
        title: _top.title
        iconSource: _top.iconSource
        showsTabs: !_top.hideControls && !_top.hideSelection
        isEditView: _top.maskingView
        onIsEditViewChosen: isEditView => _top.actions.setRefineView(isEditView)
        onMenuRequested: button => _top.actions.panelMenuWanted(button)
        onDoneEdits: _top.actions.closePanel()
        onDragBegun: _top.placement.beginDrag()
        onDragged: (x, y) => _top.placement.dragBy(x, y)
        onDropped: _top.placement.endDrag()
    }
    Flickable {
        anchors { left: parent.left; right: parent.right; top: _header.bottom; bottom: parent.bottom; margins: PebbleStyle.size.border }
        contentHeight: _content.implicitHeight + 2 * _top._margin
        interactive: contentHeight > height
        clip: interactive
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: PbScrollBar {}

        Loader {
            id: _content
            x: _top._margin
            y: _top._margin
            width: parent.width - 2 * _top._margin
            visible: !_top.hideControls && !_top.maskingView
            sourceComponent: _top.content
        }
    }
    Rectangle {
        anchors.fill: parent
        visible: _top.canReattach
        radius: _top.placement.docked ? 0 : PebbleStyle.size.smallRadius
        color: PebbleStyle.color.clear
        border { width: 3; color: PebbleStyle.color.primeBlue }
    }
    Connections {
        target: _top.actions
        enabled: _top.open

        function onPanelFocusWanted(): void {
            const first = _header.nextItemInFocusChain(true);
            first?.forceActiveFocus(Qt.TabFocusReason);
        }
    }
}
