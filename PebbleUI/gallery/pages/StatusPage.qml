import QtQuick
import PebbleUI
import PebbleGallery

GallerySection {
    title: "Dots, spinner, note, scroll bar"

    GalleryCase {
        name: "Autopilot"

        Row {
            spacing: PebbleStyle.size.spacing

            PbAutoPilotDot {}
            PbAutoPilotDot { modified: true }
            PbAutoPilotDot { enabled: false }
            PbAutoPilotDot { size: PbAutoPilotDot.Size.Small }
            PbBusySpinner { size: 16 }
        }
    }

    GalleryCase {
        name: "scroll bar"

        PbScrollBar { width: 200; orientation: Qt.Horizontal; size: 0.3; position: 0.2 }
    }

    PbInfoTipBox {
        width: 300
        text: "A note in a panel, long enough to be broken into more lines than one by the width of the box."
    }
}
