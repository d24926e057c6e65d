list(APPEND STUDIO_QML
  settings/MainSettings.qml
)
