pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import TImageIO
import TImageUtils
import PebbleUI
import imageenhance

// The files opened last, with small pictures of them.
ColumnLayout {
    id: _top

    required property list<string> recentFiles
    required property TImageUtils imageUtils

    readonly property int maxRows: 3
    readonly property int cellHeight: 132
    readonly property int cellMinimum: 80
    // A low window shows fewer and lower cells, whole ones always.
    readonly property int rows: Math.max(1, Math.min(maxRows, Math.ceil(recentFiles.length / 2), Math.floor((_room.height + spacing) / (cellMinimum + spacing))))

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

    // Takes what is left and asks for nothing: the cells follow its height, not the other way round.
    Item {
        id: _room

        Layout.fillWidth: true
        Layout.fillHeight: true

        Grid {
            columns: 2
            spacing: _top.spacing

            Repeater {
                model: Array.from(_top.recentFiles).slice(0, 2 * _top.rows)

                RecentCell {
                    required property string modelData

                    width: (_room.width - _top.spacing) / 2
                    height: Math.min(_top.cellHeight, (_room.height - (_top.rows - 1) * _top.spacing) / _top.rows)
                    path: modelData
                    thumbnail: _private.thumbnails[modelData] ?? ""
                    imageUtils: _top.imageUtils
                    onClicked: _top.openRecentFile(path)
                }
            }
        }
    }

    TThumbnailWriter {
        id: _writer
        imageDatas: Array.from(_top.recentFiles).map(path => ({ "filepath": path }))
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
