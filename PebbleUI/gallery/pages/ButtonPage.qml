pragma ComponentBehavior: Bound

import QtQuick
import PebbleUI
import PebbleGallery

GallerySection {
    title: "PbButton"

    Repeater {
        model: ["Primary", "Secondary", "Tertiary", "Duotone", "Warning", "Destructive"]

        GalleryCase {
            id: _case
            required property string modelData
            required property int index
            name: modelData

            Row {
                spacing: PebbleStyle.size.spacing

                PbButton {
                    text: "Crop"
                    type: _case.index
                    compact: true
                    iconSource: PebbleStyle.icon.crop
                }

                PbButton {
                    text: "Select"
                    type: _case.index
                    compact: true
                    selected: true
                }

                PbButton {
                    text: "Off"
                    type: _case.index
                    compact: true
                    enabled: false
                    iconSource: PebbleStyle.icon.lock
                }
            }
        }
    }

    GalleryCase {
        name: "default size"

        PbButton {
            text: "Export image"
            iconSource: PebbleStyle.icon.exportImage
        }
    }

    GalleryCase {
        name: "focused"
        showsFocusRing: true

        PbButton {
            text: "Export image"
            type: PbButton.Type.Secondary
        }
    }

    GalleryCase {
        name: "icon alone"

        Row {
            spacing: PebbleStyle.size.spacing

            PbButton {
                compact: true
                type: PbButton.Type.Secondary
                iconSource: PebbleStyle.icon.trash
                tooltip.text: "Remove"
            }

            PbButton {
                compact: true
                type: PbButton.Type.Tertiary
                iconSource: PebbleStyle.icon.settings
                layoutDirection: Qt.RightToLeft
                text: "Right"
            }
        }
    }

    GalleryCase {
        name: "filled, long"

        Column {
            spacing: PebbleStyle.size.spacing

            PbButton {
                width: 200
                compact: true
                type: PbButton.Type.Secondary
                fillWidth: true
                alignCenter: false
                iconSource: PebbleStyle.icon.folder
                text: "Fills its width"
            }

            PbButton {
                width: 200
                compact: true
                type: PbButton.Type.Secondary
                text: "A text that is too long for a button"
            }
        }
    }
}
