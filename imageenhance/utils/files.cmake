list(APPEND STUDIO_FILES
  utils/autopilotSteps.mjs
  utils/filterStack.mjs
  utils/support.mjs
  utils/viewport.mjs
  utils/writerOptions.mjs
)
