# The bar at a window's top. It draws and reports; moving and sizing the window is the program's.
list(APPEND PEBBLE_QML
  window/PbWindowButton.qml
  window/PbWindowHeader.qml
  window/PbWinWindowButtons.qml
)
