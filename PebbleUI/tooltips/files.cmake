# Tooltips and the plane they appear in. Where one goes is decided in PbTipPlacement, without a window.
list(APPEND PEBBLE_QML
  tooltips/PbHoverTip.qml
  tooltips/PbTipPlacement.qml
  tooltips/PbTooltipPlane.qml
  tooltips/PbTooltipView.qml
)
