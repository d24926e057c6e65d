import QtQuick
import PebbleUI

// Three hundred controls of six kinds, and a spinner.
Window {
    id: _top

    property bool busy: false

    width: 1200
    height: 900
    visible: true

    Grid {
        columns: 10

        Repeater { model: 50; PbButton { text: "Crop"; compact: true; iconSource: PebbleStyle.icon.crop } }
        Repeater { model: 50; PbLabel { text: "Strength" } }
        Repeater { model: 50; PbSlider { width: 110; value: 30; autoValue: 60 } }
        Repeater { model: 50; PbTextField { width: 110; text: "portrait" } }
        Repeater { model: 50; PbCheckBox { text: "Keep" } }
        Repeater { model: 50; PbComboBox { width: 110; model: ["Standard", "Strong"] } }
    }

    PbBusySpinner {
        running: _top.busy
    }
}
