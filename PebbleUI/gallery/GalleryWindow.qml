import QtQuick
import QtQuick.Controls.Fusion
import QtQuick.Layouts
import PebbleUI
import PebbleGallery

// Every control in every state. The header and the menu bar are controls on show, too.
Window {
    id: _top

    property bool dark: true

    width: 1360
    height: 880
    visible: true
    title: "PebbleUI"
    color: PebbleStyle.color.panelBkg
    Component.onCompleted: {
        PebbleStyle.darkMode = dark;
        PebbleStyle.tooltipPlane = _plane;
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        RowLayout {
            Layout.fillHeight: false
            spacing: 0

            PbWindowHeader {
                Layout.fillWidth: true
                appVersion: Application.version
                title: "Every control in every state"
                showPanelCollapseToggle: true
                onPanelCollapseToggled: isPanelCollapsed = !isPanelCollapsed
            }

            PbWinWindowButtons {
                window: _top
            }
        }

        RowLayout {
            Layout.fillHeight: false
            Layout.leftMargin: PebbleStyle.size.spacing
            spacing: PebbleStyle.size.spacingLarge

            PbMenuBar {
                PbMenu {
                    title: "&File"

                    Action {
                        text: "&Quit"
                        shortcut: StandardKey.Quit
                        onTriggered: _top.close()
                    }
                }

                PbMenu {
                    title: "Disabled"
                    enabled: false
                }
            }

            PbSwitch {
                text: "Dark theme"
                checked: PebbleStyle.darkMode
                onToggled: PebbleStyle.darkMode = checked
            }
        }

        RowLayout {
            Layout.margins: PebbleStyle.size.spacingLarge
            Layout.fillHeight: false
            spacing: PebbleStyle.size.spacingLarge

            component PageColumn: ColumnLayout {
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 320
                spacing: PebbleStyle.size.spacingLarge
            }

            PageColumn {
                LabelPage {}
                ButtonPage {}
            }

            PageColumn {
                SliderPage {}
                FieldPage {}
                TooltipPage {
                    plane: _plane
                }
            }

            PageColumn {
                ChoicePage {}
                ComboPage {}
                StatusPage {}
            }

            PageColumn {
                GridPage {}
                MenuPage {}
                DialogPage {}
            }
        }

        Item {
            Layout.fillHeight: true
        }
    }

    PbTooltipPlane {
        id: _plane
        anchors.fill: parent
    }
}
