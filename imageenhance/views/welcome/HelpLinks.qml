pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import PebbleUI
import "../../utils/support.mjs" as Support

// Where help is found.
ColumnLayout {
    id: _top

    readonly property var links: [
        {
            title: qsTr("Getting started"),
            text: qsTr("Import and enhance your first image"),
            icon: PebbleStyle.icon.play,
            page: "start"
        },
        {
            title: qsTr("User guides"),
            text: qsTr("Learn our recommended workflows"),
            icon: PebbleStyle.icon.book,
            page: "guides"
        },
        {
            title: qsTr("Enhancements"),
            text: qsTr("All features of Orvane Studio"),
            icon: PebbleStyle.icon.autopilot,
            page: "enhancements"
        },
        {
            title: qsTr("Plugins"),
            text: qsTr("Use with other editing software"),
            icon: PebbleStyle.icon.plugIn,
            page: "plugins"
        },
        {
            title: qsTr("Feedback"),
            text: qsTr("Join our community forum we want to hear from you"),
            icon: PebbleStyle.icon.message,
            page: "community"
        }
    ]

    signal openUrl(string url)

    spacing: PebbleStyle.size.spacingSmall

    PbLabel {
        type: PbLabel.Type.Heading
        text: qsTr("Help and tips")
        Layout.bottomMargin: PebbleStyle.size.spacing
    }

    Repeater {
        model: _top.links

        HelpLink {
            required property var modelData

            title: modelData.title
            note: modelData.text
            iconSource: modelData.icon
            onClicked: _top.openUrl(Support.page(modelData.page))
            Layout.fillWidth: true
        }
    }
}
