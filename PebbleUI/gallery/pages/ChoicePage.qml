import QtQuick
import PebbleUI
import PebbleGallery

GallerySection {
    title: "PbCheckBox, PbRadioButton, PbSwitch"

    GalleryCase {
        name: "normal"

        Row {
            PbCheckBox { text: "Off" }
            PbRadioButton { text: "Off"; autoExclusive: false }
            PbSwitch { text: "Off" }
        }
    }

    GalleryCase {
        name: "selected"

        Row {
            PbCheckBox { text: "On"; checked: true }
            PbRadioButton { text: "On"; checked: true; autoExclusive: false }
            PbSwitch { text: "On"; checked: true }
        }
    }

    GalleryCase {
        name: "partly"

        PbCheckBox { text: "Some of them"; tristate: true; checkState: Qt.PartiallyChecked }
    }

    GalleryCase {
        name: "focused"
        showsFocusRing: true

        Row {
            PbCheckBox { text: "On"; checked: true }
            PbRadioButton { text: "On"; checked: true; autoExclusive: false }
            PbSwitch { text: "On"; checked: true }
        }
    }

    GalleryCase {
        name: "disabled"

        Row {
            PbCheckBox { text: "On"; checked: true; enabled: false }
            PbRadioButton { text: "On"; checked: true; autoExclusive: false; enabled: false }
            PbSwitch { text: "On"; checked: true; enabled: false }
        }
    }

    GalleryCase {
        name: "long"

        PbCheckBox { width: parent.width; text: "A choice whose description is too long for the panel" }
    }
}
