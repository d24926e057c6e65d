# Inter, from the distribution's package fonts-inter, as resources under names of our own choosing.
#
# orvane_inter_font(<target> <resource> PREFIX <prefix> EXTENSION <ttf|otf> WEIGHTS Regular Medium ...)
# puts <prefix>/Inter-<Weight>.<ext> into <target>. The font loader looks at the contents, so an
# OpenType file may be served under the name that a program asks for.
function(orvane_inter_font target resource)
  cmake_parse_arguments(ARG "" "PREFIX;EXTENSION" "WEIGHTS" ${ARGN})
  set(files)
  foreach(weight IN LISTS ARG_WEIGHTS)
    find_file(ORVANE_INTER_${weight} NAMES Inter-${weight}.otf Inter-${weight}.ttf
              PATHS /usr/share/fonts /usr/local/share/fonts PATH_SUFFIXES opentype/inter truetype/inter inter
              NO_CMAKE_FIND_ROOT_PATH)
    if(NOT ORVANE_INTER_${weight})
      message(FATAL_ERROR "The font Inter (${weight}) was not found: install the package fonts-inter, "
                          "or set ORVANE_INTER_${weight} to its file.")
    endif()
    set(file ${ORVANE_INTER_${weight}})
    set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS Inter-${weight}.${ARG_EXTENSION})
    list(APPEND files ${file})
  endforeach()
  qt_add_resources(${target} ${resource} PREFIX ${ARG_PREFIX} FILES ${files})
endfunction()
