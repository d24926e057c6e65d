import QtQuick
import PebbleUI
import PebbleGallery

GallerySection {
    title: "PbTextField, PbLabeledTextField"

    GalleryCase {
        name: "text, empty"

        Row {
            spacing: PebbleStyle.size.spacing

            PbTextField {
                width: 102
                text: "portrait"
            }

            PbTextField {
                width: 102
                placeholderText: "Suffix"
            }
        }
    }

    GalleryCase {
        name: "number, error"

        Row {
            spacing: PebbleStyle.size.spacing

            PbTextField {
                width: 102
                type: PbTextField.Type.Real
                text: "12.50"
            }

            PbTextField {
                width: 102
                type: PbTextField.Type.Integer
                text: "12"
                validateInput: () => false
            }
        }
    }

    GalleryCase {
        name: "long, off"

        Row {
            spacing: PebbleStyle.size.spacing

            PbTextField {
                width: 102
                text: "a name that is longer than the field"
            }

            PbTextField {
                width: 102
                text: "fixed"
                enabled: false
            }
        }
    }

    GalleryCase {
        name: "focused"

        PbTextField {
            id: _focused
            text: "has the keyboard"
        }

        // The dialog on show takes it first.
        Timer {
            interval: 200
            running: true
            onTriggered: _focused.forceActiveFocus()
        }
    }

    GalleryCase {
        name: "labelled"

        Row {
            spacing: PebbleStyle.size.spacing

            PbLabeledTextField {
                width: 102
                labelText: "W"
                units: "px"
                valueType: PbTextField.Type.Integer
                value: "6000"
            }

            PbLabeledTextField {
                width: 102
                labelText: "H"
                units: "px"
                valueType: PbTextField.Type.Integer
                value: "4"
                validateInput: () => false
            }
        }
    }

    GalleryCase {
        name: "disabled"

        PbLabeledTextField {
            width: 102
            labelText: "DPI"
            valueType: PbTextField.Type.Integer
            value: "300"
            enabled: false
        }
    }
}
