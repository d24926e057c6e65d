import QtQuick
import PebbleUI
import "../../utils/support.mjs" as Support

// What to do about an error of the engine: an explanation when memory is short, for all else a page to read.
Item {
    id: _top

    required property string error

    // The engine's own message.
    readonly property bool outOfMemory: error === "Out of memory"

    implicitWidth: outOfMemory ? _icon.width : _link.implicitWidth
    implicitHeight: _link.implicitHeight

    PbIcon {
        id: _icon
        anchors.verticalCenter: parent.verticalCenter
        visible: _top.outOfMemory
        iconSource: PebbleStyle.icon.info
        color: PebbleStyle.color.textAlwaysLight

        PbHoverTip {
            textFormat: Text.StyledText
            text: qsTr("Not able to allocate enough memory to process the image. This may be due to running out of system memory (RAM).<br><br>Try closing programs to free up RAM and try again. Restarting your computer can free up RAM as well.<br><br>If this continues installing more RAM may be needed to support these operations, especially in cases of large upscales.")
        }
    }
    PbLabel {
        id: _link
        anchors.verticalCenter: parent.verticalCenter
        visible: !_top.outOfMemory
        text: qsTr("Learn more")
        color: PebbleStyle.color.primeBlue
        font.underline: _hover.hovered
        Accessible.role: Accessible.Link

        HoverHandler {
            id: _hover
            cursorShape: Qt.PointingHandCursor
        }
        TapHandler {
            onTapped: Qt.openUrlExternally(Support.page("models"))
        }
    }
}
