import QtQuick
import PebbleUI
import "../../utils/viewport.mjs" as Viewport

// The steps of the zoom as a list that shows the present zoom.
PbComboBox {
    id: _top

    required property var steps // of { value, fit }, ascending
    required property int percent

    signal chosen(real zoom)

    type: PbComboBox.Type.Compact
    textRole: "text"
    valueRole: "value"
    secondaryRole: "secondary"
    model: steps.map(step => ({
                text: step.fit ? qsTr("Fit") : Viewport.percent(step.value) + "%",
                secondary: step.fit ? Viewport.percent(step.value) + "%" : "",
                value: step.value
            }))
    displayText: percent + "%"
    Accessible.name: qsTr("Zoom")
    // Another size of the window makes another list, which falls to its first entry.
    onModelChanged: Qt.callLater(_private.select)
    onPercentChanged: Qt.callLater(_private.select)
    onActivated: chosen(currentValue ?? 1)

    readonly property QtObject _private: QtObject {
        id: _private

        function select(): void {
            const at = _top.model.findIndex(entry => entry.text === _top.displayText);
            if (at >= 0)
                _top.currentIndex = at;
        }
    }
}
