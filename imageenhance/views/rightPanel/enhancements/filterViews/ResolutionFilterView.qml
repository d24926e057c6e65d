pragma ComponentBehavior: Bound
import TIntegrations
import imageenhance

// Keeps the size within its limits even while it is hidden: the crop may change without it.
FilterView {
    id: _top

    readonly property ResolutionState resolution: ResolutionState {
        controls: _top.panelState.controls
        filterName: _top.filterName
        parentCategory: _top.parentCategory
        settings: _top.settings
        originalSize: _top.windowState.inputSize
        cropRect: _top.windowState.currentCropRect
        pluginDisplayName: _top._host.isPluginMode ? _top._host.pluginDisplayName : ""
        resizingSupported: _top._host.resizingSupported
        psAutomate: _top._host.pluginType === TIntegrations.PSAutomate
        loading: _top.windowState.isLoading
        onEstimateFileSize: _top.actions.estimateFileSize()
    }

    readonly property TIntegrations _host: windowState.integrations

    content: ResolutionFilterControl {
        controls: _top.panelState.controls
        filterName: _top.filterName
        parentCategory: _top.parentCategory
        resolution: _top.resolution
        settings: _top.settings
        locked: _top.locked
        nearLeftEdge: _top.nearLeftEdge
        fileSize: _top.actions.fileSize
        fileSizeError: _top.actions.fileSizeError
    }
}
