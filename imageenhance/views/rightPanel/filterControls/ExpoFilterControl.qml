// The strength of an "Exposure Adjust" filter; below zero it adds to what it otherwise evens out.
FilterControl {
    id: _top

    FilterSlider {
        control: _top
        text: qsTr("Strength")
        key: "param1"
        from: -25
        to: 75
        fallback: 0.5
        markFrom: -25
        markTo: 75
        tooltip.text: [
            qsTr("Controls the level of lighting correction. Dark images will be brightened by default. Bright images will be darkened by default."),
            qsTr("Values above 0 will correct the lighting to look more natural."),
            qsTr("Values below 0 will intensify the existing lighting conditions.")
        ].join(" ")
    }
}
