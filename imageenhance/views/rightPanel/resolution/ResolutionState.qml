import QtQml
import TControls
import imageenhance
import "../../../utils/upscaleLimits.mjs" as Limits

// The output size of one Enhance filter, without a screen: follows the filter's params, the picture and its crop, keeps
// what the filter's mode names within the limits, and writes what the user sets.
QtObject {
    id: _top

    required property TControls controls
    required property string filterName
    required property string parentCategory
    required property MainSettings settings
    required property size originalSize // of the file, in pixels
    required property rect cropRect // in fractions of it
    required property string pluginDisplayName // empty outside plug-in mode
    required property bool resizingSupported // by the host; counts in plug-in mode alone
    required property bool psAutomate
    // True while `originalSize` may still be that of the image before: nothing is limited or written meanwhile.
    property bool loading: false

    // The filter as the model has it, read once for all that show it; empty where it has gone.
    readonly property var filter: controls.currentChanges >= 0 ? controls.currentFilter(filterName) : {}
    readonly property var params: filter.params ?? ({})
    readonly property string model: filter.model || "Standard"
    readonly property var autoFilter: controls.currentImage !== "" && controls.advicesHeard >= 0 ? controls.advisedFilter(parentCategory) : {} // Autopilot's

    readonly property real scale: _private.current.scale
    readonly property real width: _private.current.width // output pixels
    readonly property real height: _private.current.height
    readonly property string mode: _private.current.mode // "scale", "width" or "height": what the user fixed
    readonly property real resolution: _private.current.resolution // pixels per unit
    readonly property int resolutionUnit: _private.current.resolutionUnit // TImageSettings.ResolutionUnit

    readonly property size imageSize: {
        const cropped = Limits.croppedSize(originalSize, cropRect);
        return Qt.size(cropped.width, cropped.height);
    }
    readonly property bool resizable: pluginDisplayName === "" || resizingSupported
    readonly property real rawImageScale: Limits.rawImageScale(imageSize, _private.host)
    readonly property real minScale: _private.limits.minScale
    readonly property real maxScale: _private.limits.maxScale
    readonly property int minWidth: _private.limits.minWidth
    readonly property int maxWidth: _private.limits.maxWidth
    readonly property int minHeight: _private.limits.minHeight
    readonly property int maxHeight: _private.limits.maxHeight

    // The params have changed, and with them the size of the file.
    signal estimateFileSize

    function applyUpscaleLimitsToResizeControls(): void {
        if (!_private.isReady())
            return;
        _private.take(Limits.applied(filter.params ?? {}, imageSize, _private.limits));
        Qt.callLater(_private.updateSettings);
    }

    function setScale(scale: real): void {
        _private.userSets(Limits.withScale(_private.current, imageSize, scale));
    }

    function setWidth(width: real): void {
        _private.userSets(Limits.withWidth(_private.current, imageSize, width));
    }

    function setHeight(height: real): void {
        _private.userSets(Limits.withHeight(_private.current, imageSize, height));
    }

    function setResolution(resolution: real): void {
        _private.userSets(Object.assign({}, _private.current, { resolution }));
    }

    function setResolutionUnit(unit: int): void {
        _private.userSets(Limits.withUnit(_private.current, unit));
    }

    // In the unit that sizes are shown in.
    function shown(pixels: real): real {
        return Limits.shown(pixels, _private.current);
    }

    function pixelsOf(value: real): real {
        return Limits.pixelsOf(value, _private.current);
    }

    // Writes the size. `manual` is a change by the user: the next preview run is skipped once and asked for again.
    function update(manual: bool): void {
        const next = Limits.paramsOf(_private.current);
        if (!Limits.differs(params, next))
            return;
        // A write to a filter that has just been removed would bring it back without its category.
        if (controls.currentFilter(filterName).category === undefined)
            return;
        // A write that follows from another change is no step of the user's own.
        if (!manual)
            controls.recordEdit();
        const changed = controls.setParams(filterName, Object.assign(next, { updated: manual }));
        if (!manual)
            controls.amendEdit();
        if (changed)
            estimateFileSize();
    }

    onFilterChanged: applyUpscaleLimitsToResizeControls()
    onImageSizeChanged: applyUpscaleLimitsToResizeControls()
    onLoadingChanged: applyUpscaleLimitsToResizeControls()
    Component.onCompleted: applyUpscaleLimitsToResizeControls()

    readonly property QtObject _private: QtObject {
        id: _private

        property var taken: null // the size that the filter has; null before there is one
        readonly property var current: taken ?? ({
                scale: 1,
                width: 0,
                height: 0,
                mode: "scale",
                resolution: 72,
                resolutionUnit: 1 // pixels
            })
        property string imagePath: "" // of the image that `current` belongs to

        readonly property var host: ({
                pluginDisplayName: _top.pluginDisplayName,
                psAutomate: _top.psAutomate,
                scaleMin: _top.controls.ENHANCE_SCALE_MIN,
                pixelMax: _top.controls.ENHANCE_PIXEL_MAX
            })
        readonly property var limits: Limits.limitsOf(_top.imageSize, host)

        onLimitsChanged: _top.applyUpscaleLimitsToResizeControls()

        // A function and no property: asked by handlers, which may come before a binding has followed.
        function isReady(): bool {
            return _top.filter.category !== undefined && !_top.loading && _top.imageSize.width > 0 && _top.imageSize.height > 0;
        }

        function take(size: var): void {
            const denser = imagePath === _top.controls.currentImage && size.resolution !== current.resolution;
            imagePath = _top.controls.currentImage;
            taken = size;
            if (denser)
                _top.controls.setResolution(size.resolution);
        }

        function userSets(size: var): void {
            if (!isReady())
                return;
            take(size);
            _top.settings.resolutionUnit = size.resolutionUnit;
            _top.update(true);
        }

        function updateSettings(): void {
            if (!isReady())
                return;
            _top.settings.resolutionUnit = _top.resolutionUnit;
            _top.update(false);
        }
    }
}
