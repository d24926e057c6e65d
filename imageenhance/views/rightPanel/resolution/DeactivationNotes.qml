pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import PebbleUI
import TControls
import imageenhance
import "../../../utils/support.mjs" as Support

// Says which enhancements Autopilot left out, because upscaling does their work.
ColumnLayout {
    id: _top

    required property TControls controls
    required property ResolutionState resolution

    spacing: PebbleStyle.size.spacing
    visible: _private.sharpen || _private.denoise

    LinkedNote {
        visible: _private.sharpen
        note: qsTr("Deactivating Sharpen because this filter can handle moderate blur.")
    }
    LinkedNote {
        visible: _private.denoise
        note: qsTr("Deactivating Denoise because this filter can handle moderate noise.")
    }

    component LinkedNote: PbInfoTipBox {
        id: _box

        required property string note

        textFormat: Text.StyledText
        text: qsTr("%1 <a href=\"%2\">Learn more</a>").arg(note).arg(Support.page("upscale"))
        activeFocusOnTab: true
        Layout.fillWidth: true
        Accessible.name: note
        Accessible.description: qsTr("Learn more")
        Accessible.focusable: true
        Accessible.onPressAction: _private.open()
        onLinkActivated: _private.open()
        onActiveFocusChanged: PbFocusRings.of(_box, _box, radius).always = true
        Keys.onReturnPressed: _private.open()
        Keys.onEnterPressed: _private.open()
    }

    QtObject {
        id: _private

        readonly property bool sharpen: leftOut(_top.controls.categories.sharpen)
        readonly property bool denoise: leftOut(_top.controls.categories.denoise) || leftOut(_top.controls.categories.raw)

        function leftOut(category: string): bool {
            const controls = _top.controls;
            if (controls.advicesHeard < 0 || !controls.advisedFilter(category).params?.deselectedByUpscaling)
                return false;
            const inUse = filter => filter.category === category && filter.enabled;
            return controls.currentChanges >= 0 && !controls.filterOrder.some(name => inUse(controls.currentFilter(name)));
        }

        function open(): void {
            Qt.openUrlExternally(Support.page("upscale"));
        }
    }
}
