pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import PebbleUI
import TImageSettings
import imageenhance

// The output size as a width or a height, in pixels or in a unit of length; then its resolution, too.
ColumnLayout {
    id: _top

    required property ResolutionState resolution

    readonly property bool inPixels: resolution.resolutionUnit === TImageSettings.Pixels
    readonly property bool inInches: resolution.resolutionUnit === TImageSettings.Inches

    spacing: PebbleStyle.size.spacing

    PbLabel {
        type: PbLabel.Type.Title
        text: qsTr("Dimensions")
    }

    SideField {
        type: TScaleTextField.Type.Width
        mode: "width"
        pixels: _top.resolution.width
        least: _top.resolution.minWidth
        most: _top.resolution.maxWidth
        onChosen: pixels => _top.resolution.setWidth(pixels)
    }
    SideField {
        type: TScaleTextField.Type.Height
        mode: "height"
        pixels: _top.resolution.height
        least: _top.resolution.minHeight
        most: _top.resolution.maxHeight
        onChosen: pixels => _top.resolution.setHeight(pixels)
    }
    TLabelledTextField {
        visible: !_top.inPixels
        label: qsTr("Resolution")
        unit: _top.inInches ? "px/in" : "px/cm"
        value: _top.resolution.resolution
        minValue: 1
        maxValue: 3.4e38
        decimals: 3
        Layout.fillWidth: true
        onEditingFinished: text => _top.resolution.setResolution(Number(text))
    }

    component SideField: TScaleTextField {
        id: _side

        required property string mode
        required property real pixels
        required property int least
        required property int most

        signal chosen(real pixels)

        value: _top.resolution.shown(pixels)
        minValue: _top.resolution.shown(least)
        maxValue: _top.resolution.shown(most)
        decimals: _top.inPixels ? 0 : 3
        unit: _top.inPixels ? "PX" : _top.inInches ? "IN" : "CM"
        highlight: _top.resolution.mode === mode
        Layout.fillWidth: true
        onEditingFinished: text => _side.chosen(Math.min(Math.max(_top.resolution.pixelsOf(Number(text)), least), most))
        onUpdateResolutionUnit: unit => _top.resolution.setResolutionUnit(unit)
    }
}
