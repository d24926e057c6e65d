# The older BaseTheme. What PebbleStyle gives is in C++ and listed with the library's sources.
list(APPEND PEBBLE_QML
  style/BaseFonts.qml
  style/BaseTheme.qml
)
