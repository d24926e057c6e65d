import QtQuick
import imageenhance

// Makes the refine panel of one row and goes with the row. A row whose category has no panel stays without one.
Item {
    id: _top

    required property string adjustedFilterName
    required property string parentCategory
    required property string displayText
    required property string iconSource
    required property bool openPanel
    required property int index

    required property RightPanelState panelState
    required property EnhancementActions actions
    required property WindowState windowState
    required property MainSettings settings
    required property RefinePlacement placement

    readonly property alias view: _private.view

    Component.onCompleted: {
        _private.create();
        if (!openPanel)
            return;
        panelState.enhancementsModel.setProperty(index, "openPanel", false); // once
        actions.showRefinePanel(adjustedFilterName);
    }

    QtObject {
        id: _private

        property FilterView view: null

        readonly property var documents: {
            const names = _top.panelState.controls.categories;
            return {
                [names.enhance]: "Resolution",
                [names.denoise]: "Denoise",
                [names.raw]: "RAW",
                [names.sharpen]: "Sharpen",
                [names.faceRecovery]: "Face",
                [names.textRecovery]: "Text",
                [names.exposure]: "Expo",
                [names.whiteBalance]: "WB",
                [names.inpaint]: "Inpaint"
            };
        }

        function create(): void {
            const document = Qt.createComponent(Qt.resolvedUrl("filterViews/" + documents[_top.parentCategory] + "FilterView.qml"));
            if (document.status === Component.Ready) {
                view = document.createObject(_top, {
                    "panelState": _top.panelState,
                    "actions": _top.actions,
                    "windowState": _top.windowState,
                    "settings": _top.settings,
                    "placement": _top.placement,
                    "filterName": _top.adjustedFilterName,
                    "parentCategory": _top.parentCategory,
                    "title": _top.displayText,
                    "iconSource": _top.iconSource
                }) as FilterView;
            }
            if (view)
                return;
            console.warn("Error creating focus column object", document.errorString());
            console.warn("Refinement panel was not created.");
        }
    }
}
