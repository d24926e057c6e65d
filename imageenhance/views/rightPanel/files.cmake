list(APPEND STUDIO_QML
  views/rightPanel/ColumnLoading.qml
  views/rightPanel/EditModes.qml
  views/rightPanel/EnhancementsModel.qml
  views/rightPanel/FilterVocabulary.qml
  views/rightPanel/ProgressState.qml
  views/rightPanel/RightPanel.qml
  views/rightPanel/RightPanelState.qml
  views/rightPanel/StatusBar.qml
  views/rightPanel/StatusHelp.qml
  views/rightPanel/StatusIndicator.qml
  views/rightPanel/StatusRules.qml
)
