import QtQuick

// Who asks the scheduler for runs, and by which name the log knows them.
QtObject {
    id: _top

    required property var scheduler // ProcScheduler
    required property var engine // ImageProcessor
    required property var preview // ImagePreview
    required property var panel // RightPanel

    readonly property Connections _ofEngine: Connections {
        target: _top.engine

        function onParamsChanged(): void {
            _top.scheduler.paramsChanged();
        }
    }

    readonly property Connections _ofPreview: Connections {
        target: _top.preview

        function onRequestProc(roi: rect): void {
            _top.scheduler.viewChanged(roi);
        }

        function onProcRoiChanged(): void {
            _top.scheduler.procRoiChanged();
        }
    }

    readonly property Connections _ofPanel: Connections {
        target: _top.panel

        function onRequestProc(): void {
            _top.scheduler.requestFrom("right panel");
        }

        function onEditModeChanged(): void {
            _top.scheduler.requestFrom("edit mode changed");
        }
    }
}
