import PebbleUI
import PebbleGallery

GallerySection {
    title: "PbGridSelect"

    GalleryCase {
        name: "one of"

        PbGridSelect {
            width: 220
            column: 3
            model: [{ text: "1x", value: 1 }, { text: "2x", value: 2 }, { text: "4x", value: 4 },
                    { text: "Max", value: 6, enabled: false }, { text: "New", value: 7, showBeta: true },
                    { text: "A long one", value: 8 }]
            selectedItem: 1
            autoValue: 2
        }
    }

    GalleryCase {
        name: "some of"

        PbGridSelect {
            width: 220
            column: 2
            multiSelect: true
            model: [{ text: "Faces", iconSource: PebbleStyle.icon.face, value: 1 },
                    { text: "Sky", iconSource: PebbleStyle.icon.sky, value: 2 }]
            selectedItems: [1]
        }
    }

    GalleryCase {
        name: "focused"
        showsFocusRing: true

        PbGridOption {
            text: "Landscape"
        }
    }
}
