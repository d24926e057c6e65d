import QtQuick
import QtQuick.Layouts
import PebbleUI
import imageenhance

// One message. Leaves by its button, or by itself when its time is over; the pointer over it holds the time.
Rectangle {
    id: _top

    required property int index
    required property string title
    required property string message
    required property int type // Toaster.Type
    required property int timeout // milliseconds; stays when not above 0

    readonly property alias elapsed: _countdown.elapsed // fraction of its time

    signal gone

    readonly property color _accent: {
        switch (type) {
        case Toaster.Type.Warn:
        case Toaster.Type.InpaintWarn:
            return PebbleStyle.color.darkYellow;
        case Toaster.Type.Error:
            return PebbleStyle.color.primeRed;
        default:
            return PebbleStyle.color.primeBlue;
        }
    }
    readonly property url _icon: type === Toaster.Type.Info ? PebbleStyle.icon.info : type === Toaster.Type.Error ? PebbleStyle.icon.error : PebbleStyle.icon.warning

    implicitHeight: _content.implicitHeight + 2 * _content.anchors.margins
    radius: PebbleStyle.size.mediumRadius
    color: PebbleStyle.color.panelBkg
    border.width: PebbleStyle.size.border
    border.color: PebbleStyle.color.gray
    opacity: 0
    Accessible.role: Accessible.AlertMessage
    Accessible.name: title
    Accessible.description: message
    Component.onCompleted: opacity = 1
    onOpacityChanged: {
        if (opacity === 0 && _private.leaving)
            gone();
    }

    Behavior on opacity {
        NumberAnimation {
            duration: 200
        }
    }

    Rectangle {
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom; margins: PebbleStyle.size.border }
        width: PebbleStyle.size.spacingSmall
        radius: PebbleStyle.size.spacingTiny
        color: _top._accent
    }

    RowLayout {
        id: _content

        anchors { left: parent.left; right: parent.right; top: parent.top; margins: 12 }
        anchors.leftMargin: PebbleStyle.size.spacingLarge
        spacing: PebbleStyle.size.spacing

        PbIcon {
            iconSource: _top._icon
            color: _top._accent
            Layout.alignment: Qt.AlignTop
            Layout.topMargin: 2
        }
        ColumnLayout {
            spacing: PebbleStyle.size.spacingSmall
            Layout.alignment: Qt.AlignTop

            PbLabel {
                type: PbLabel.Type.Title
                text: _top.title
                wrapMode: Text.Wrap
                elide: Text.ElideNone
                Layout.fillWidth: true
                Accessible.ignored: true
            }
            PbLabel {
                visible: text !== ""
                text: _top.message
                color: PebbleStyle.color.lighterGray
                wrapMode: Text.Wrap
                elide: Text.ElideNone
                Layout.fillWidth: true
                Accessible.ignored: true
            }
        }
        ToastCountdown {
            id: _countdown
            timeout: _top.timeout
            held: _hover.hovered
            onOver: {
                _private.leaving = true;
                _top.opacity = 0;
            }
            onClicked: _top.gone()
            Layout.alignment: Qt.AlignTop
        }
    }

    HoverHandler {
        id: _hover
    }

    QtObject {
        id: _private
        property bool leaving: false
    }
}
