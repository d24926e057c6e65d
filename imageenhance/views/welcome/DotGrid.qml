import QtQuick
import PebbleUI

// A grid of dots around the middle.
ShaderEffect {
    readonly property size canvasSize: Qt.size(width, height)
    readonly property real dotSize: 2.1
    readonly property real spacing: 50
    readonly property color dotColor: PebbleStyle.darkMode ? "#24FFFFFF" : "#24000000"
    readonly property real dotColorR: dotColor.r
    readonly property real dotColorG: dotColor.g
    readonly property real dotColorB: dotColor.b
    readonly property real dotColorA: dotColor.a

    fragmentShader: "qrc:/shaders/image-bg.frag.qsb"
}
