list(APPEND STUDIO_QML
  elements/TLabelledTextField.qml
  elements/TScaleTextField.qml
  elements/TUnitSelector.qml
)
