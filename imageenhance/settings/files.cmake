list(APPEND STUDIO_QML
  settings/MainSettings.qml
)
list(APPEND STUDIO_FILES
  settings/settingsRules.mjs
)
