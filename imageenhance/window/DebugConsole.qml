pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import PebbleUI
import TControls
import imageenhance

// For developers, Ctrl+Shift+D: puts Autopilot's filters on the image, sets a parameter of one, asks for the size of a
// save, switches settings.
Rectangle {
    id: _top

    required property TControls controls
    required property RightPanel panel
    required property MainSettings settings

    implicitWidth: 360
    implicitHeight: _column.implicitHeight + 2 * PebbleStyle.size.spacing
    radius: PebbleStyle.size.mediumRadius
    color: PebbleStyle.color.panelBkg
    border.color: PebbleStyle.color.gray

    ColumnLayout {
        id: _column

        anchors.fill: parent
        anchors.margins: PebbleStyle.size.spacing

        PbLabel {
            text: "Filters: " + _top.controls.filterOrder.join(", ")
            Layout.fillWidth: true
        }
        RowLayout {
            PbButton {
                compact: true
                text: "Apply Autopilot"
                onClicked: _top.controls.applyRecommendedFilters()
            }
            PbSwitch {
                text: "Recommend"
                checked: _top.settings.autopilotRecommendFilters
                onToggled: _top.settings.autopilotRecommendFilters = checked
            }
        }
        RowLayout {
            PbTextField {
                id: _filter
                text: _top.controls.categories.denoise
                Layout.preferredWidth: 100
            }
            PbTextField {
                id: _key
                text: "strength"
                Layout.preferredWidth: 100
            }
            PbTextField {
                id: _value
                text: "0.5"
                Layout.preferredWidth: 60
            }
            PbButton {
                compact: true
                text: "Set"
                onClicked: _top.controls.setParam(_filter.text, _key.text, _key.text === "enabled" ? _value.text === "true" : Number(_value.text))
            }
        }
        RowLayout {
            PbButton {
                compact: true
                text: "Estimate file size"
                onClicked: _top.panel.estimateFileSize()
            }
            PbLabel {
                text: _top.panel.fileSizeError || `${(_top.panel.fileSize / 1e6).toFixed(2)} MB`
                Layout.fillWidth: true
            }
        }
        RowLayout {
            Repeater {
                model: ["auto", "dark", "light"]

                PbButton {
                    required property string modelData
                    compact: true
                    text: modelData
                    onClicked: _top.settings.colorScheme = modelData
                }
            }
        }
    }
}
