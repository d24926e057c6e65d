import QtQuick
import PebbleUI
import imageenhance

// What is selected for a row's filter. The pointer over it shows the selection on the picture.
PbText {
    id: _top

    required property RightPanelState panelState
    required property EnhancementActions actions
    required property string filterName
    required property string parentCategory

    readonly property int _mode: {
        const names = panelState.controls.categories;
        return parentCategory === names.textRecovery ? EditMode.Text : parentCategory === names.faceRecovery ? EditMode.Faces : EditMode.Subject;
    }

    function _preview(show: bool): void {
        if (panelState.expandedFilter)
            return;
        if (show)
            panelState.controls.setActiveCategory(filterName);
        actions.hoverPreview(show, _mode);
    }

    type: PbLabel.Type.Label
    color: PebbleStyle.color.lightGray

    HoverHandler {
        onHoveredChanged: _top._preview(hovered)
    }
    MouseArea {
        anchors.fill: parent
        onClicked: _top.actions.showRefinePanel(_top.filterName, true)
    }
}
