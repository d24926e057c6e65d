list(APPEND STUDIO_FILES
  utils/filterStack.mjs
  utils/saveButton.mjs
  utils/support.mjs
  utils/viewport.mjs
  utils/writerOptions.mjs
)
