# Dialogs within a window.
list(APPEND PEBBLE_QML
  dialogs/PbDialog.qml
  dialogs/PbDialogButtons.qml
  dialogs/PbDialogMessage.qml
  dialogs/PbModalHeader.qml
)
