list(APPEND STUDIO_FILES
  utils/enhancementRow.mjs
  utils/filterStack.mjs
  utils/reasons.mjs
  utils/refinePlacement.mjs
  utils/support.mjs
  utils/viewport.mjs
  utils/writerOptions.mjs
)
