import QtQuick
import TImageProcessor
import PebbleUI
import imageenhance
import "../../utils/viewport.mjs" as Viewport

// The whole picture, small, with a frame around what the preview shows. Dragging the frame moves the view.
Item {
    id: _top

    required property PreviewSource source
    required property ImagePreviewState previewState
    required property FlickableImage picture // whose view the frame is
    required property bool frameShown

    readonly property int maxHeight: 150
    readonly property rect fillRect: _private.rect(Viewport.navigatorRect(_private.cropped, width, maxHeight))
    readonly property bool panning: _pointer.pressed && (_pointer.pressedButtons & Qt.LeftButton)

    signal grabbed
    signal released
    signal rightClicked(point windowPoint)

    implicitHeight: fillRect.height

    TSelectionPreview {
        anchors.horizontalCenter: parent.horizontalCenter
        width: _top.fillRect.width
        height: _top.fillRect.height
        imageData: _top.source.input
        srgbFallback: _top.source.srgbFallback
        imageSize: _top.source.inputSize
        cropRect: _top.previewState.shownCrop
        imageRotation: _top.previewState.shownRotation
        Accessible.role: Accessible.Graphic
        Accessible.name: qsTr("Navigator")

        Rectangle {
            id: _frame

            readonly property rect place: _private.rect(Viewport.panRect(_top.picture.visiblePart, Qt.rect(0, 0, _top.fillRect.width, _top.fillRect.height), 8))

            visible: _top.frameShown
            x: Math.round(place.x)
            y: Math.round(place.y)
            width: Math.round(place.width)
            height: Math.round(place.height)
            color: PebbleStyle.color.clear
            border.color: "white"
            border.width: 2

            Rectangle {
                anchors.fill: parent
                anchors.margins: 2
                color: PebbleStyle.color.clear
                border.color: "black"
                border.width: 1
            }
        }

        MouseArea {
            id: _pointer

            anchors.fill: parent
            enabled: _top.frameShown
            acceptedButtons: Qt.LeftButton | Qt.RightButton
            preventStealing: true
            onPressed: mouse => {
                if (mouse.button !== Qt.LeftButton)
                    return;
                _top.grabbed();
                _private.follow(mouse.x, mouse.y);
            }
            onPositionChanged: mouse => {
                if (mouse.buttons & Qt.LeftButton)
                    _private.follow(mouse.x, mouse.y);
            }
            onReleased: mouse => {
                if (mouse.button === Qt.LeftButton)
                    Qt.callLater(_top.released);
            }
            onClicked: mouse => {
                if (mouse.button === Qt.RightButton)
                    _top.rightClicked(mapToItem(null, mouse.x, mouse.y - 20));
            }
        }
    }

    QtObject {
        id: _private

        readonly property size cropped: Qt.size(_top.source.inputSize.width * _top.previewState.shownCrop.width, _top.source.inputSize.height * _top.previewState.shownCrop.height)

        function rect(r: var): rect {
            return Qt.rect(r.x, r.y, r.width, r.height);
        }

        // The pointer becomes the middle of what is seen.
        function follow(x: real, y: real): void {
            const content = _top.picture.contentSize;
            const seen = _top.picture.visiblePart;
            const fill = _top.fillRect;
            _top.picture.moveTo((x / fill.width - seen.width / 2) * content.width, (y / fill.height - seen.height / 2) * content.height, false);
        }
    }
}
