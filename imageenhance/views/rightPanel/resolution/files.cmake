list(APPEND STUDIO_QML
  views/rightPanel/resolution/DeactivationNotes.qml
  views/rightPanel/resolution/DimensionsSection.qml
  views/rightPanel/resolution/ModelSection.qml
  views/rightPanel/resolution/ResolutionFilterControl.qml
  views/rightPanel/resolution/ResolutionState.qml
  views/rightPanel/resolution/ScaleSection.qml
  views/rightPanel/resolution/ScaleShortcutButton.qml
  views/rightPanel/resolution/SizeEstimateLine.qml
  views/rightPanel/resolution/UpscaleModels.qml
)
