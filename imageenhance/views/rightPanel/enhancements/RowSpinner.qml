import QtQuick
import TImageProcessor
import "../../../utils/enhancementRow.mjs" as Rules

// Whether the engine is at the beginning of a run, which has no progress to show yet.
QtObject {
    id: _top

    required property TEngineController engine

    readonly property alias running: _private.running

    readonly property Connections _ofEngine: Connections {
        target: _top.engine

        function onStatusChanged(): void {
            if (Rules.startsSpinner(_top.engine.status))
                _private.running = true;
        }
        function onProgressChanged(): void {
            _private.end();
        }
        function onProcessingChanged(): void {
            _private.end();
        }
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property bool running: false

        function end(): void {
            if (Rules.endsSpinner(_top.engine.progress, _top.engine.processing))
                running = false;
        }
    }
}
