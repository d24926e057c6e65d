pragma ComponentBehavior: Bound

import QtQuick
import PebbleUI
import PebbleGallery

GallerySection {
    title: "PbLabel"

    Repeater {
        model: [
            { name: "Heading", type: PbLabel.Type.Heading }, { name: "CTA", type: PbLabel.Type.CTA },
            { name: "Title", type: PbLabel.Type.Title }, { name: "Body", type: PbLabel.Type.Body },
            { name: "Footnote", type: PbLabel.Type.Footnote }, { name: "Label", type: PbLabel.Type.Label },
        ]

        GalleryCase {
            id: _case
            required property var modelData
            name: modelData.name

            PbLabel {
                text: "A quick brown fox"
                type: _case.modelData.type
            }
        }
    }

    GalleryCase {
        name: "disabled"

        PbLabel {
            text: "A quick brown fox"
            enabled: false
        }
    }

    GalleryCase {
        name: "long, link"

        PbLabel {
            width: parent.width
            text: "A text that is too long for the place it stands in"
        }

        PbLabel {
            y: 17
            textFormat: Text.StyledText
            text: "<a href='#'>A link</a>"
        }
    }
}
