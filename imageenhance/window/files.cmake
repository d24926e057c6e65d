list(APPEND STUDIO_QML
  window/AppCommands.qml
  window/AppShortcuts.qml
  window/DebugConsole.qml
  window/DimensionsHeader.qml
  window/OpenImageDialog.qml
  window/PanelQuestions.qml
  window/RightClickMenu.qml
  window/RightClickRules.qml
  window/WinTitleBar.qml
  window/WindowContent.qml
  window/WindowDialogs.qml
  window/WindowPlace.qml
  window/WindowStart.qml
)
