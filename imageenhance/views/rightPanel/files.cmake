list(APPEND STUDIO_QML
  views/rightPanel/ProgressState.qml
  views/rightPanel/RightPanel.qml
  views/rightPanel/StatusBar.qml
  views/rightPanel/StatusHelp.qml
  views/rightPanel/StatusIndicator.qml
  views/rightPanel/StatusRules.qml
)
