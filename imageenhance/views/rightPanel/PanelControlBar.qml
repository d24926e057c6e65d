import QtQuick
import PebbleUI
import imageenhance

// Above the column: what is added to it, and what was done is taken back.
Rectangle {
    id: _top

    required property bool collapsed
    required property bool panelOpen
    required property EditSteps steps

    readonly property alias addButton: _add

    signal toggleAddPanel

    height: visible ? (collapsed ? 96 + 48 : 48) : 0
    color: PebbleStyle.color.panelBkg

    Grid {
        anchors.centerIn: parent
        columns: _top.collapsed ? 1 : 3
        columnSpacing: PebbleStyle.size.spacingSmall
        rowSpacing: PebbleStyle.size.spacingLarge

        AddButton {
            id: _add
            width: _top.collapsed ? implicitWidth : _top.width - 2 * PebbleStyle.size.spacingSmall - 2 * (_undo.width + PebbleStyle.size.spacingSmall)
            compact: true
            collapsed: _top.collapsed
            panelOpen: _top.panelOpen
            onClicked: _top.toggleAddPanel()
        }
        StepButton {
            id: _undo
            iconSource: PebbleStyle.icon.undo
            enabled: _top.steps.canUndo
            tooltip.text: qsTr("Undo")
            onClicked: _top.steps.undo()
        }
        StepButton {
            iconSource: PebbleStyle.icon.redo
            enabled: _top.steps.canRedo
            tooltip.text: qsTr("Redo")
            onClicked: _top.steps.redo()
        }
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: PebbleStyle.size.border
        color: PebbleStyle.color.darkGray
    }

    component StepButton: PbButton {
        type: PbButton.Type.Tertiary
        compact: true
        tooltip.hugContents: true
        tooltip.alignment: PbTooltipPlane.Alignment.Left
    }
}
