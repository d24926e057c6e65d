import QtQuick

// The temperature and the opacity of a "White Balance Adjust" filter.
FilterControl {
    id: _top

    // From cold to warm light, the same in both themes.
    readonly property Gradient _temperatures: Gradient {
        orientation: Gradient.Horizontal
        GradientStop { position: 0; color: "#2E5894" }
        GradientStop { position: 0.25; color: "#627572" }
        GradientStop { position: 0.5; color: "#969251" }
        GradientStop { position: 0.75; color: "#C9AF2F" }
        GradientStop { position: 1; color: "#FDCC0D" }
    }

    FilterSlider {
        control: _top
        text: qsTr("Temperature")
        key: "temperature"
        gradient: _top._temperatures
        fallback: 0.5
        markFrom: 0
        tooltip.text: qsTr("Controls warmth or coolness for the image.")
    }
    FilterSlider {
        control: _top
        text: qsTr("Opacity")
        key: "strength"
        fallback: 1
        markFrom: 0
        tooltip.text: qsTr("Controls strength of the color cast correction and temperature. Decrease opacity to return to the original image color.")
    }
}
