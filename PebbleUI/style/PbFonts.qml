pragma ComponentBehavior: Bound

import QtQuick

// The library brings its own Inter, so that a program needs no font of that name installed.
QtObject {
    id: _top

    readonly property string family: _regular.status === FontLoader.Ready ? _regular.name : "Inter"

    component Role: PbTextRole {
        family: _top.family
    }

    readonly property PbTextRole heading: Role { size: 16; weight: Font.DemiBold; lineHeight: 17 }
    readonly property PbTextRole cta: Role { size: 14; weight: Font.DemiBold; lineHeight: 17 }
    readonly property PbTextRole title: Role { size: 12; weight: Font.Medium; lineHeight: 15 }
    readonly property PbTextRole body: Role { size: 12; weight: Font.Normal; lineHeight: 15 }
    readonly property PbTextRole footnote: Role {
        size: 12
        weight: Font.Normal
        lineHeight: 15
        italic: true
    }
    readonly property PbTextRole label: Role {
        size: 10
        weight: Font.Normal
        lineHeight: 12
        letterSpacing: 0.25
    }

    // In the order of PbLabel.Type.
    readonly property list<PbTextRole> byType: [heading, cta, title, body, footnote, label]

    readonly property string _folder: "qrc:/PebbleUI/PebbleUI/fonts/"
    readonly property FontLoader _regular: FontLoader { source: _top._folder + "Inter-Regular.otf" }
    readonly property FontLoader _medium: FontLoader { source: _top._folder + "Inter-Medium.otf" }
    readonly property FontLoader _semiBold: FontLoader { source: _top._folder + "Inter-SemiBold.otf" }
}
