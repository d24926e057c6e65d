import QtQuick

// The library brings its own Inter, so that a program needs no font of that name installed.
QtObject {
    id: _top

    readonly property string family: _regular.status === FontLoader.Ready ? _regular.name : "Inter"

    readonly property PbTextRole heading: PbTextRole { size: 16; weight: Font.DemiBold; lineHeight: 17 }
    readonly property PbTextRole cta: PbTextRole { size: 14; weight: Font.DemiBold; lineHeight: 17 }
    readonly property PbTextRole title: PbTextRole { size: 12; weight: Font.Medium; lineHeight: 15 }
    readonly property PbTextRole body: PbTextRole { size: 12; weight: Font.Normal; lineHeight: 15 }
    readonly property PbTextRole footnote: PbTextRole {
        size: 12
        weight: Font.Normal
        lineHeight: 15
        italic: true
    }
    readonly property PbTextRole label: PbTextRole {
        size: 10
        weight: Font.Normal
        lineHeight: 12
        letterSpacing: 0.25
    }

    readonly property string _folder: "qrc:/PebbleUI/PebbleUI/fonts/"
    readonly property FontLoader _regular: FontLoader { source: _top._folder + "Inter-Regular.otf" }
    readonly property FontLoader _medium: FontLoader { source: _top._folder + "Inter-Medium.otf" }
    readonly property FontLoader _semiBold: FontLoader { source: _top._folder + "Inter-SemiBold.otf" }
}
