pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import TImageIO
import PebbleUI
import imageenhance

// The files opened last, with small pictures of them.
ColumnLayout {
    id: _top

    required property var recentFiles
    required property var imageUtils

    readonly property int shown: 6

    signal openRecentFile(string path)
    signal clearRecentFiles

    spacing: PebbleStyle.size.spacingLarge

    RowLayout {
        PbLabel {
            type: PbLabel.Type.Heading
            text: qsTr("Recent")
            Layout.fillWidth: true
        }
        PbButton {
            compact: true
            type: PbButton.Type.Tertiary
            enabled: _top.recentFiles.length > 0
            text: qsTr("Clear")
            onClicked: _top.clearRecentFiles()
        }
    }

    PbLabel {
        visible: _top.recentFiles.length === 0
        color: PebbleStyle.color.lightGray
        text: qsTr("No recent files")
    }

    GridLayout {
        columns: 2
        columnSpacing: PebbleStyle.size.spacingLarge
        rowSpacing: PebbleStyle.size.spacingLarge

        Repeater {
            model: _top.recentFiles.slice(0, _top.shown)

            RecentCell {
                required property string modelData

                path: modelData
                thumbnail: _private.thumbnails[modelData] ?? ""
                imageUtils: _top.imageUtils
                onClicked: _top.openRecentFile(path)
                Layout.preferredWidth: (_top.width - PebbleStyle.size.spacingLarge) / 2
                Layout.preferredHeight: 132
            }
        }
    }

    Item {
        Layout.fillHeight: true
    }

    TThumbnailWriter {
        id: _writer
        imageDatas: _top.recentFiles.map(path => ({ "filepath": path }))
        onImageDatasChanged: Qt.callLater(_writer.startGenerating)
        Component.onCompleted: Qt.callLater(_writer.startGenerating)
        onThumbnailWritten: (index, path, thumbnail) => {
            _private.thumbnails = Object.assign({}, _private.thumbnails, { [path]: thumbnail });
        }
    }

    QtObject {
        id: _private

        property var thumbnails: ({}) // path -> thumbnail's path
    }
}
