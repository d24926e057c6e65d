import QtQuick
import PebbleUI
import imageenhance

// One step of an Autopilot run, and the line to the next one, which fills when this one is complete.
AutoPilotStepRow {
    id: _top

    required property int status // AutoPilotStatus.StepStatus
    required property bool last

    readonly property bool _over: status === AutoPilotStatus.StepStatus.Complete || status === AutoPilotStatus.StepStatus.Skipped

    color: status === AutoPilotStatus.StepStatus.InProgress ? PebbleStyle.color.textHoverLight : _over ? PebbleStyle.color.textLight : PebbleStyle.color.lightGray
    Accessible.description: status === AutoPilotStatus.StepStatus.Complete ? qsTr("Complete") : status === AutoPilotStatus.StepStatus.InProgress ? qsTr("In progress") : ""

    PbIcon {
        anchors.centerIn: parent
        visible: _top._over
        iconSource: _top.status === AutoPilotStatus.StepStatus.Skipped ? PebbleStyle.icon.minus : PebbleStyle.icon.check
        color: _top.status === AutoPilotStatus.StepStatus.Skipped ? PebbleStyle.color.lightGray : PebbleStyle.color.primeGreen
    }
    Rectangle {
        anchors.centerIn: parent
        visible: _top.status === AutoPilotStatus.StepStatus.NotStarted
        width: 10
        height: width
        radius: width / 2
        color: PebbleStyle.color.clear
        border.width: PebbleStyle.size.border
        border.color: PebbleStyle.color.lightGray
    }
    PbBusySpinner {
        anchors.centerIn: parent
        size: PebbleStyle.size.icon
        running: _top.visible && _top.status === AutoPilotStatus.StepStatus.InProgress
    }
    Rectangle {
        id: _line

        visible: !_top.last
        x: Math.round((parent.width - width) / 2)
        y: parent.height + PebbleStyle.size.spacingSmall
        width: PebbleStyle.size.spacingTiny
        height: _top.height - parent.height - 2 * PebbleStyle.size.spacingSmall
        color: PebbleStyle.color.darkGray

        Rectangle {
            width: parent.width
            height: _top._over ? parent.height : 0
            color: PebbleStyle.color.primeGreen

            Behavior on height {
                NumberAnimation {
                    duration: 200
                }
            }
        }
    }
}
