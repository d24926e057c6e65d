import QtQuick
import QtQuick.Layouts
import PebbleUI

// How large the file would be, or why that is not known.
RowLayout {
    id: _top

    property real fileSize: 0 // bytes; 0 when unknown
    property string error: ""

    visible: fileSize > 0 || error !== ""
    spacing: PebbleStyle.size.spacing

    PbIcon {
        visible: _top.error !== ""
        iconSource: PebbleStyle.icon.warning
        color: PebbleStyle.color.textWarning
        Layout.alignment: Qt.AlignTop
    }
    PbLabel {
        text: _top.error !== "" ? _top.error : qsTr("Estimated file size")
        color: _top.error !== "" ? PebbleStyle.color.textWarning : PebbleStyle.color.lightGray
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        Layout.fillWidth: true
    }
    PbLabel {
        visible: _top.error === ""
        text: Qt.locale().formattedDataSize(_top.fileSize, 1, Locale.DataSizeSIFormat)
    }
}
