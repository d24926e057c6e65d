list(APPEND STUDIO_FILES
  utils/support.mjs
  utils/upscaleLimits.mjs
  utils/viewport.mjs
  utils/writerOptions.mjs
)
