pragma ComponentBehavior: Bound
import QtQuick
import PebbleUI
import TControls
import imageenhance

// What Autopilot is doing, step by step, while the column is empty. In a collapsed column only signs are seen.
Item {
    id: _top

    // The numbers of utils/autopilotSteps.mjs.
    enum AutoPilotSteps { NoFiles, Loading, Subject, Faces, Params, Final, Done, AddFilter }
    enum StepStatus { NotStarted, InProgress, Complete, Skipped }

    required property TControls controls
    required property ImageProcessor engine
    required property bool imageOpen
    required property bool loading
    required property string loadingStatus
    required property bool lensCorrectionEnabled
    required property int lensCorrected // OptionalBoolean: whether the loaded picture was; Unset where nobody knows
    required property bool collapsed

    readonly property alias currentStep: _rules.currentStep
    readonly property alias steps: _rules.steps

    // As AutoPilotSteps or words.
    function setFilter(list: var): void {
        _rules.setFilter(list);
    }

    implicitHeight: _column.implicitHeight
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Autopilot")

    AutoPilotRules {
        id: _rules
        controls: _top.controls
        engine: _top.engine
        imageOpen: _top.imageOpen
        loading: _top.loading
        loadingStatus: _top.loadingStatus
        lensCorrectionEnabled: _top.lensCorrectionEnabled
        lensCorrected: _top.lensCorrected
    }

    Column {
        id: _column
        anchors { left: parent.left; right: parent.right }

        AutoPilotStepRow {
            width: parent.width
            text: qsTr("Analyzing image...")
            collapsed: _top.collapsed
            emphasized: true

            PbBusySpinner {
                anchors.centerIn: parent
                size: PebbleStyle.size.icon
                running: _top.visible
            }
        }
        Repeater {
            model: _rules.steps
            delegate: AutoPilotStep {
                required property int index
                required property int modelData

                width: _column.width
                status: _rules.statusOf(modelData)
                text: _rules.textOf(modelData)
                last: index === _rules.steps.length - 1
                collapsed: _top.collapsed
            }
        }
    }
}
