list(APPEND STUDIO_QML
  enums/OptionalBoolean.qml
  enums/PreferencesPage.qml
  enums/SliderStrength.qml
)
