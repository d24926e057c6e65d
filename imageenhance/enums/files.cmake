list(APPEND STUDIO_QML
  enums/EditMode.qml
  enums/OptionalBoolean.qml
  enums/PreferencesPage.qml
  enums/SliderStrength.qml
)
