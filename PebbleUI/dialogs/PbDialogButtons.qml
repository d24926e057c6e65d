pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import PebbleUI

// The row of buttons under a dialog, in equal parts of its width.
Item {
    id: _top

    // Entries { type, text, enabled, onClicked }; all but the text may be left out.
    required property var buttons

    // A button without an `onClicked` was pressed.
    signal plainClicked()

    implicitHeight: PebbleStyle.size.dialogFooter

    // What Return presses when nothing else in the dialog wants it: the first primary button that is
    // enabled, or else the first harmless one. Null when there is none: what destroys is chosen on purpose.
    function defaultButton(): PbButton {
        let harmless = null;
        for (let i = 0; i < _repeater.count; ++i) {
            const button = _repeater.itemAt(i) as PbButton;
            if (!button?.enabled)
                continue;
            if (button.type === PbButton.Type.Primary)
                return button;
            if (button.type !== PbButton.Type.Destructive && button.type !== PbButton.Type.Warning)
                harmless = harmless ?? button;
        }
        return harmless;
    }

    RowLayout {
        anchors.fill: parent
        anchors.margins: PebbleStyle.size.spacingLarge
        spacing: PebbleStyle.size.spacing
        uniformCellSizes: true

        Repeater {
            id: _repeater

            // Counted, so that a changed entry does not make all the buttons anew and lose the focus.
            model: _top.buttons.length

            PbButton {
                required property int index
                readonly property var entry: _top.buttons[index] ?? {}

                text: entry.text ?? ""
                type: entry.type ?? PbButton.Type.Primary
                enabled: entry.enabled ?? true
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.minimumWidth: 0

                onClicked: {
                    if (entry.onClicked)
                        entry.onClicked();
                    else
                        _top.plainClicked();
                }
            }
        }
    }
}
