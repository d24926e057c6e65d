# Menus that are drawn in the window.
list(APPEND PEBBLE_QML
  menus/PbMenu.qml
  menus/PbMenuBackground.qml
  menus/PbMenuBar.qml
  menus/PbMenuItem.qml
  menus/PbMenuItemContent.qml
  menus/PbMenuSeparator.qml
  menus/PbMnemonic.qml
)
