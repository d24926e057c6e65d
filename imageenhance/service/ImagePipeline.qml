import QtQuick
import TImageIO
import imageenhance

// What becomes of an image from its opening to the picture on the screen: makes the flows and schedulers and gives each
// what it needs. They listen to the model, the reader, the engine and the preview themselves.
QtObject {
    id: _top

    required property ImageProcessor engine
    required property TImageWriter writer
    required property ImagePreview preview
    required property RightPanel panel
    required property WindowState windowState
    required property MainSettings settings

    readonly property alias scheduler: _scheduler
    readonly property alias autopilot: _autopilot
    readonly property alias sizes: _sizes

    signal loadingFailed(string path, string error)

    readonly property ProcScheduler _schedulerObject: ProcScheduler {
        id: _scheduler

        engine: _top.engine
        preview: _top.preview
        panel: _top.panel
        windowState: _top.windowState
        addingFilter: _autopilot.addingFilters || _top.panel.addingFilter
    }

    readonly property AutopilotRun _autopilotObject: AutopilotRun {
        id: _autopilot

        engine: _top.engine
        panel: _top.panel
        windowState: _top.windowState
        settings: _top.settings
        scheduler: _scheduler
    }

    readonly property ImageOpening _opening: ImageOpening {
        engine: _top.engine
        panel: _top.panel
        windowState: _top.windowState
        autopilot: _autopilot
        scheduler: _scheduler
        onLoadingFailed: (path, error) => _top.loadingFailed(path, error)
    }

    readonly property Selections _selections: Selections {
        engine: _top.engine
        preview: _top.preview
        windowState: _top.windowState
    }

    readonly property SizeEstimates _sizesObject: SizeEstimates {
        id: _sizes

        engine: _top.engine
        writer: _top.writer
        panel: _top.panel
        windowState: _top.windowState
        settings: _top.settings
    }
}
