# Colours, fonts, sizes, times and icon paths: the groups of PebbleStyle, and the older BaseTheme.
list(APPEND PEBBLE_QML
  style/BaseFonts.qml
  style/BaseTheme.qml
  style/PbBrand.qml
  style/PbColors.qml
  style/PbFonts.qml
  style/PbMetrics.qml
  style/PbTextRole.qml
  style/PbTimes.qml
)
