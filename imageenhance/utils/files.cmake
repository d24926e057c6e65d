list(APPEND STUDIO_FILES
  utils/viewport.mjs
)
