list(APPEND STUDIO_QML
  views/presets/PresetDialogs.qml
  views/presets/PresetFilterList.qml
  views/presets/PresetNameRules.qml
  views/presets/TPresetEditorDialog.qml
)
