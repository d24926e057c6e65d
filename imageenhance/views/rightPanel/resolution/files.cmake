list(APPEND STUDIO_QML
  views/rightPanel/resolution/ResolutionFilterControl.qml
  views/rightPanel/resolution/ResolutionState.qml
)
