pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls.Fusion
import QtQuick.Effects
import TImageUtils
import PebbleUI

// One recent file: its picture, rounded, and its name.
AbstractButton {
    id: _top

    required property string path
    required property string thumbnail // empty until one is written
    required property TImageUtils imageUtils

    readonly property int decodeLimit: 1024

    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    padding: 4
    text: imageUtils.getFilename(path)
    Accessible.role: Accessible.Button
    Accessible.name: text
    Keys.onReturnPressed: click()

    background: Rectangle {
        radius: PebbleStyle.size.mediumRadius
        color: _top.hovered || _top.down ? PebbleStyle.color.darkGray : PebbleStyle.color.clear

        PbFocusRing {
            target: _top
            targetRadius: PebbleStyle.size.mediumRadius
        }
    }

    contentItem: Item {
        Rectangle {
            id: _frame

            anchors { left: parent.left; right: parent.right; top: parent.top; bottom: _name.top; bottomMargin: PebbleStyle.size.spacingSmall }
            radius: PebbleStyle.size.mediumRadius
            color: PebbleStyle.color.darkerGray

            PbIcon {
                anchors.centerIn: parent
                visible: _picture.status !== Image.Ready
                iconSource: PebbleStyle.icon.image
                size: 24
                color: PebbleStyle.color.lightGray
            }
            Image {
                id: _picture

                anchors.fill: parent
                asynchronous: true
                autoTransform: true
                fillMode: Image.PreserveAspectCrop
                sourceSize: Qt.size(_top.decodeLimit, _top.decodeLimit)
                source: _top.imageUtils.stringToUrl(_top.thumbnail !== "" && !_private.damaged ? _top.thumbnail : _top.path)
                onStatusChanged: {
                    if (status !== Image.Error || _top.thumbnail === "" || _private.damaged)
                        return;
                    console.warn("Damaged thumbnail of", _top.path);
                    _private.damaged = true;
                }
                layer.enabled: true
                layer.effect: MultiEffect {
                    maskEnabled: true
                    maskSource: _mask
                    maskThresholdMin: 0.5
                    maskSpreadAtMin: 1
                }
            }
            Rectangle {
                id: _mask

                anchors.fill: parent
                radius: PebbleStyle.size.mediumRadius
                visible: false
                layer.enabled: true
            }
        }
        PbLabel {
            id: _name

            anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
            text: _top.text
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }
    }

    onThumbnailChanged: _private.damaged = false

    QtObject {
        id: _private
        property bool damaged: false // the thumbnail; the file itself is shown in its place
    }

    PbHoverTip {
        title: _top.text
        text: _top.path
        hugContents: true
        alignment: PbTooltipPlane.Alignment.Left
    }
}
