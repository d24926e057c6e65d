import QtQuick
import QtQuick.Layouts
import TImageUtils
import PebbleUI
import imageenhance

// Shown while no image is open: where to drop images, what was open last, and where help is.
Rectangle {
    id: _top

    required property list<string> recentFiles // paths, most recent first
    required property TImageUtils imageUtils
    required property bool dropEnabled

    signal browseImages
    signal openRecentFile(string path)
    signal clearRecentFiles
    signal openUrl(string url)

    color: PebbleStyle.color.pageBkg

    RowLayout {
        anchors.fill: parent
        anchors.margins: 24
        spacing: 24

        DropFrame {
            dropEnabled: _top.dropEnabled
            onBrowseImages: _top.browseImages()
            Layout.fillWidth: true
            Layout.fillHeight: true
        }

        ColumnLayout {
            spacing: 24
            Layout.preferredWidth: 400
            Layout.maximumWidth: 400
            Layout.fillHeight: true

            RecentGrid {
                recentFiles: _top.recentFiles
                imageUtils: _top.imageUtils
                onOpenRecentFile: path => _top.openRecentFile(path)
                onClearRecentFiles: _top.clearRecentFiles()
                Layout.fillWidth: true
                Layout.fillHeight: true
                // What the links leave, whatever the cells would like.
                Layout.minimumHeight: 0
                Layout.preferredHeight: 0
            }
            HelpLinks {
                onOpenUrl: url => _top.openUrl(url)
                Layout.fillWidth: true
            }
        }
    }
}
