list(APPEND STUDIO_FILES
  utils/filterModels.mjs
  utils/percent.mjs
  utils/support.mjs
  utils/viewport.mjs
  utils/writerOptions.mjs
)
