list(APPEND STUDIO_QML
  utils/FileNameValidator.qml
)
list(APPEND STUDIO_FILES
  utils/autopilotSteps.mjs
  utils/enhancementRow.mjs
  utils/filterModels.mjs
  utils/filterStack.mjs
  utils/percent.mjs
  utils/presetReduction.mjs
  utils/reasons.mjs
  utils/refinePlacement.mjs
  utils/saveButton.mjs
  utils/suggestions.mjs
  utils/support.mjs
  utils/upscaleLimits.mjs
  utils/viewport.mjs
  utils/writerOptions.mjs
)
