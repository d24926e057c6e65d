list(APPEND STUDIO_FILES
  utils/filterStack.mjs
  utils/suggestions.mjs
  utils/support.mjs
  utils/viewport.mjs
  utils/writerOptions.mjs
)
