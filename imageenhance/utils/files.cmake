list(APPEND STUDIO_QML
  utils/FileNameValidator.qml
)
list(APPEND STUDIO_FILES
  utils/autopilotSteps.mjs
  utils/filterStack.mjs
  utils/saveButton.mjs
  utils/filterModels.mjs
  utils/percent.mjs
  utils/suggestions.mjs
  utils/enhancementRow.mjs
  utils/filterStack.mjs
  utils/reasons.mjs
  utils/refinePlacement.mjs
  utils/presetReduction.mjs
  utils/support.mjs
  utils/upscaleLimits.mjs
  utils/viewport.mjs
  utils/writerOptions.mjs
)
