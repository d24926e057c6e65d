import PebbleUI
import PebbleGallery

GallerySection {
    title: "Combo boxes"

    component Box: PbComboBox {
        width: 200
    }

    GalleryCase {
        name: "normal"

        Box { model: ["Standard", "Strong"] }
    }

    GalleryCase {
        name: "icon, long"

        Box {
            model: ["A model with a name that is too long for the box"]
            iconSource: PebbleStyle.icon.wand
        }
    }

    GalleryCase {
        name: "focused"
        showsFocusRing: true

        Box { model: ["Standard"] }
    }

    GalleryCase {
        name: "busy, compact"

        Box {
            model: ["Working"]
            busy: true
            type: PbComboBox.Type.Compact
        }
    }

    GalleryCase {
        name: "warning"

        Box { model: ["Standard"]; outline: PbComboBox.Outline.Warning }
    }

    GalleryCase {
        name: "error"

        Box { model: ["Standard"]; outline: PbComboBox.Outline.Error }
    }

    GalleryCase {
        name: "disabled"

        Box { model: ["Standard"]; enabled: false }
    }

    GalleryCase {
        name: "sections"

        PbSectionedComboBox {
            width: 200
            textRole: "text"
            valueRole: "value"
            model: [{ section: true, text: "Common" }, { text: "TIFF", value: "tif" }, { section: true, text: null },
                    { text: "PNG", value: "png" }]
        }
    }

    GalleryCase {
        name: "several"

        PbMultiComboBox {
            width: 200
            textRole: "text"
            valueRole: "value"
            model: [{ text: "Faces", value: 1 }, { text: "Sky", value: 2 }]
            currentItems: [1, 2]
        }
    }
}
