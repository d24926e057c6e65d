import QtQuick
import QtQuick.Controls.Fusion
import PebbleUI
import PebbleGallery

GallerySection {
    id: _top

    title: "PbMenu"

    Item {
        id: _place
        width: 304
        height: 292

        PbMenu {
            id: _menu
            y: PebbleStyle.size.pivotHeight
            pivot: 30
            margins: -1
            closePolicy: Popup.NoAutoClose
            focus: false

            Action {
                text: "Close image"
                shortcut: "Ctrl+W"
            }

            PbMenuItem {
                text: "Suggested"
                autoSuggested: true
                iconSource: PebbleStyle.icon.autopilot
            }

            PbMenuItem {
                text: "Checked"
                checkable: true
                checked: true
            }

            PbMenuSeparator {}

            PbMenuItem {
                text: "An entry with a text that is too long"
                highlighted: true
            }

            PbMenuItem {
                text: "Disabled"
                enabled: false
            }

            PbMenu {
                title: "Sub-menu"
            }
        }
    }

    Component.onCompleted: _menu.open()
}
