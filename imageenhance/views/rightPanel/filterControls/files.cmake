list(APPEND STUDIO_QML
  views/rightPanel/filterControls/DenoiseFilterControl.qml
  views/rightPanel/filterControls/ExpoFilterControl.qml
  views/rightPanel/filterControls/RAWFilterControl.qml
  views/rightPanel/filterControls/SharpenFilterControl.qml
  views/rightPanel/filterControls/WBFilterControl.qml
)
