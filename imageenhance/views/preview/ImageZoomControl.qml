pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import PebbleUI
import "../../utils/viewport.mjs" as Viewport

// The zoom of the picture: a slider between two buttons, and a list of steps. 1 is 100 %.
RowLayout {
    id: _top

    required property real fitScale
    required property real outputScale
    property bool followsUpscale: false // setting updateZoomAfterUpscale

    readonly property alias currentZoom: _private.zoom
    readonly property alias pressed: _slider.pressed

    function setZoomLevel(zoom: real): void {
        _private.zoom = Number.isFinite(zoom) ? Math.max(_private.least, Math.min(zoom, Viewport.ZOOM_MAX)) : 1;
    }

    function incrementZoom(): void {
        _private.take(Viewport.zoomAbove(_private.steps, currentZoom));
    }

    function decrementZoom(): void {
        _private.take(Viewport.zoomBelow(_private.steps, currentZoom));
    }

    function setToFit(): void {
        setZoomLevel(fitScale);
    }

    function setToDefault(): void {
        setZoomLevel(fitScale > 1 ? fitScale : 1);
    }

    onOutputScaleChanged: {
        if (followsUpscale)
            _private.zoom = Viewport.zoomAfterScale(_private.zoom, _private.previousScale, outputScale, _private.steps[0].value);
        _private.previousScale = outputScale;
    }

    spacing: PebbleStyle.size.spacingSmall

    ZoomButton {
        iconSource: PebbleStyle.icon.minus
        tooltip.text: qsTr("Zoom out")
        onClicked: _top.decrementZoom()
    }

    PbSlider {
        id: _slider

        from: _private.least
        to: Viewport.ZOOM_MAX
        stepSize: 0.01
        value: _top.currentZoom
        defaultValue: 1
        Accessible.name: qsTr("Zoom")
        Layout.preferredWidth: 120
        onMoved: _top.setZoomLevel(value)
    }

    ZoomButton {
        iconSource: PebbleStyle.icon.plus
        tooltip.text: qsTr("Zoom in")
        onClicked: _top.incrementZoom()
    }

    ZoomList {
        steps: _private.steps
        percent: Viewport.percent(_top.currentZoom)
        onChosen: zoom => _top.setZoomLevel(zoom)
        Layout.preferredWidth: 84
    }

    component ZoomButton: PbButton {
        type: PbButton.Type.Tertiary
        compact: true
        tooltip.hugContents: true
    }

    QtObject {
        id: _private

        property real zoom: 1
        property real previousScale: 1
        readonly property real least: _top.fitScale > 0 ? Math.min(1, _top.fitScale) : 1
        readonly property var steps: Viewport.zoomList(_top.fitScale)

        function take(zoom: var): void {
            if (zoom !== undefined)
                _top.setZoomLevel(zoom);
        }
    }
}
