import QtQuick
import TImageProcessor
import "../../../utils/enhancementRow.mjs" as Row

// Whether the engine is at the beginning of a run, which has no progress to show yet.
Connections {
    id: _top

    required property TEngineController engine
    property bool running: false

    function _end(): void {
        if (Row.endsSpinner(engine.progress, engine.processing))
            running = false;
    }

    target: engine

    function onStatusChanged(): void {
        if (Row.startsSpinner(_top.engine.status))
            _top.running = true;
    }
    function onProgressChanged(): void {
        _top._end();
    }
    function onProcessingChanged(): void {
        _top._end();
    }
}
