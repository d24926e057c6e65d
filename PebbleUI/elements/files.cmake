# Parts that controls are built from, usable by themselves.
list(APPEND PEBBLE_QML
  elements/PbFocusRing.qml
  elements/PbIcon.qml
  elements/PbText.qml
)
list(APPEND PEBBLE_SINGLETONS
  elements/PbFocusRings.qml
)
