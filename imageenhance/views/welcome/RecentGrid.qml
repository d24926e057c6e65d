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

    readonly property int maxRows: 3
    readonly property int cellHeight: 132
    readonly property int cellMinimum: 80
    // A low window shows fewer and lower cells, whole ones always.
    readonly property real gridRoom: height - _heading.height - spacing
    readonly property int rows: Math.max(1, Math.min(maxRows, Math.ceil(recentFiles.length / 2), Math.floor((gridRoom + _grid.rowSpacing) / (cellMinimum + _grid.rowSpacing))))

    signal openRecentFile(string path)
    signal clearRecentFiles

    spacing: PebbleStyle.size.spacingLarge

    RowLayout {
        id: _heading

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
        id: _grid

        columns: 2
        columnSpacing: PebbleStyle.size.spacingLarge
        rowSpacing: PebbleStyle.size.spacingLarge

        Repeater {
            model: _top.recentFiles.slice(0, 2 * _top.rows)

            RecentCell {
                required property string modelData

                path: modelData
                thumbnail: _private.thumbnails[modelData] ?? ""
                imageUtils: _top.imageUtils
                onClicked: _top.openRecentFile(path)
                Layout.preferredWidth: (_top.width - PebbleStyle.size.spacingLarge) / 2
                Layout.preferredHeight: Math.min(_top.cellHeight, (_top.gridRoom - (_top.rows - 1) * _grid.rowSpacing) / _top.rows)
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
