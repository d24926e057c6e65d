import QtQuick
import PebbleUI
import PebbleGallery

GallerySection {
    title: "PbSlider, PbLabeledSlider"

    GalleryCase {
        name: "normal"

        PbSlider {
            value: 40
        }
    }

    GalleryCase {
        name: "auto mark"

        PbSlider {
            value: 40
            autoValue: 70
        }
    }

    GalleryCase {
        name: "gradient"

        PbSlider {
            value: 60
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: PebbleStyle.color.primeBlue }
                GradientStop { position: 1; color: PebbleStyle.color.warningYellow }
            }
        }
    }

    GalleryCase {
        name: "focused"
        showsFocusRing: true

        PbSlider {
            value: 20
        }
    }

    GalleryCase {
        name: "disabled"

        PbSlider {
            value: 50
            enabled: false
        }
    }

    GalleryCase {
        name: "labelled"

        PbLabeledSlider {
            text: "Strength"
            value: 35
            autoValue: 35
        }
    }

    GalleryCase {
        name: "modified"

        PbLabeledSlider {
            text: "Minor deblur"
            decimals: 2
            to: 1
            value: 0.25
            autoValue: 0.6
        }
    }

    GalleryCase {
        name: "horizontal"

        PbLabeledSlider {
            layout: PbLabeledSlider.Layout.Horizontal
            text: "Size"
            value: 80
        }
    }

    GalleryCase {
        name: "long, off"

        PbLabeledSlider {
            text: "A label that is too long for the slider below it"
            value: 10
            enabled: false
        }
    }
}
