list(APPEND STUDIO_QML
  views/rightPanel/autopilot/AutoPilotRules.qml
  views/rightPanel/autopilot/AutoPilotStatus.qml
  views/rightPanel/autopilot/AutoPilotStep.qml
  views/rightPanel/autopilot/AutoPilotStepRow.qml
  views/rightPanel/autopilot/FineAsItIs.qml
)
