pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import PebbleUI
import imageenhance

// The output size as a factor: shortcuts, and a field for all others.
ColumnLayout {
    id: _top

    required property ResolutionState resolution

    readonly property real shownScale: Number(resolution.scale.toFixed(_field.decimals))
    readonly property bool isCustom: _private.customClicked || !_private.shortcuts.includes(shownScale)

    spacing: PebbleStyle.size.spacing

    PbLabel {
        type: PbLabel.Type.Title
        text: qsTr("Scale")
    }

    RowLayout {
        spacing: PebbleStyle.size.spacingSmall
        visible: _top.resolution.maxScale > 1

        Repeater {
            model: _private.shortcuts

            ScaleShortcutButton {
                required property int modelData

                visible: _top.resolution.maxScale > modelData
                text: qsTr("%1x").arg(modelData)
                selected: !_private.customClicked && _top.shownScale === modelData
                Layout.fillWidth: true
                onClicked: _private.choose(modelData)
            }
        }
        ScaleShortcutButton {
            visible: _top.resolution.maxScale > 4
            text: qsTr("Custom")
            selected: _top.isCustom
            onClicked: {
                _private.choose(_top.resolution.scale);
                _private.customClicked = true;
                _field.takeFocus();
            }
        }
    }

    RowLayout {
        spacing: PebbleStyle.size.spacingSmall

        TScaleTextField {
            id: _field
            type: TScaleTextField.Type.Scale
            value: _top.resolution.scale
            minValue: _top.resolution.minScale
            maxValue: _top.resolution.maxScale
            highlight: _top.resolution.mode === "scale" && ![1, 2, 4, 6].includes(_top.shownScale)
            Layout.fillWidth: true
            onEditingFinished: text => _private.choose(Math.min(Math.max(Number(text), minValue), maxValue))
            onInputFocusChanged: {
                if (!inputFocus)
                    _private.customClicked = false;
            }
        }
        PbButton {
            type: PbButton.Type.Secondary
            compact: true
            text: qsTr("Max")
            onClicked: _private.choose(_top.resolution.maxScale)
        }
    }

    QtObject {
        id: _private

        readonly property list<int> shortcuts: [1, 2, 4]
        property bool customClicked: false // and the field not left since

        function choose(scale: real): void {
            customClicked = false;
            _top.resolution.setScale(scale);
        }
    }
}
