import QtQuick
import PebbleUI
import TImageProcessor
import imageenhance

// One caption over the picture that says what is being done to it. Folds to its icon a while after the work is done.
Rectangle {
    id: _top

    required property TEngineController engine
    required property int editMode
    required property bool imageLoaded
    required property bool isLoadingImage
    required property bool isRunningAutopilot
    required property bool originalRequested
    required property bool noFiltersEnabled
    required property bool previewUpdated
    required property bool panningOffProcessedArea
    required property bool inpaintLocked

    readonly property alias progressState: _rules.state
    readonly property alias caption: _rules.caption
    readonly property alias expanded: _private.expanded
    readonly property int foldedWidth: 28
    readonly property bool hovered: _private.hovered

    StatusRules {
        id: _rules

        engine: _top.engine
        editMode: _top.editMode
        imageLoaded: _top.imageLoaded
        isLoadingImage: _top.isLoadingImage
        isRunningAutopilot: _top.isRunningAutopilot
        originalRequested: _top.originalRequested
        noFiltersEnabled: _top.noFiltersEnabled
        previewUpdated: _top.previewUpdated
        panningOffProcessedArea: _top.panningOffProcessedArea
        inpaintLocked: _top.inpaintLocked
        onCaptionChanged: _private.unfold()
    }

    readonly property bool _completed: _rules.state === ProgressState.Completed

    visible: imageLoaded
    height: 28
    width: _private.expanded ? _content.implicitWidth + 2 * PebbleStyle.size.spacing : foldedWidth
    radius: PebbleStyle.size.smallRadius
    clip: true
    color: _completed ? PebbleStyle.color.primeBlue : Qt.alpha(PebbleStyle.color.alwaysDark, 0.8)
    Accessible.role: Accessible.StatusBar
    Accessible.name: caption

    Behavior on width {
        NumberAnimation {
            duration: 150
        }
    }

    Rectangle {
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        visible: _rules.showsBar
        width: parent.width * _rules.progress / 100
        color: !_rules.inpainting ? PebbleStyle.color.primeBlue : _rules.state === ProgressState.Inpaint_LockingEdits ? "#847700" : "#62881C"

        Behavior on width {
            NumberAnimation {
                duration: 100
            }
        }
    }

    Row {
        id: _content

        x: _private.expanded ? PebbleStyle.size.spacing : Math.round((_top.foldedWidth - PebbleStyle.size.icon) / 2)
        anchors.verticalCenter: parent.verticalCenter
        spacing: PebbleStyle.size.spacingSmall

        StatusIndicator {
            id: _indicator
            rules: _rules
            color: _caption.color
        }
        PbLabel {
            id: _caption
            text: _rules.caption
            color: _top._completed ? PebbleStyle.color.alwaysDark : PebbleStyle.color.textAlwaysLight
            opacity: _private.expanded ? 1 : 0
            anchors.verticalCenter: parent.verticalCenter
        }
        StatusHelp {
            visible: _rules.state === ProgressState.ModelError && _rules.status === ""
            error: _rules.caption
            anchors.verticalCenter: parent.verticalCenter
        }
    }

    HoverHandler {
        enabled: _top.editMode === EditMode.None && _rules.state !== ProgressState.ModelError && !_rules.viewsOriginal
        onHoveredChanged: _private.hover(hovered)
    }

    Timer {
        id: _delayedCollapse
        interval: 1500
        onTriggered: _private.expanded = false
    }
    Timer {
        id: _delayedShow
        interval: 250
        onTriggered: _private.hovered = true
    }

    QtObject {
        id: _private

        property bool expanded: true
        property bool hovered: false

        function unfold(): void {
            expanded = true;
            if (_top._completed)
                _delayedCollapse.restart();
            else
                _delayedCollapse.stop();
        }

        function hover(over: bool): void {
            if (over) {
                expanded = true;
                _delayedCollapse.stop();
                _delayedShow.restart();
                return;
            }
            _delayedShow.stop();
            hovered = false;
            expanded = false;
        }
    }
}
