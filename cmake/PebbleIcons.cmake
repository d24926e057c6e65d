# Makes the icon resources and the documents that name them out of one table, icons.json.
#
# pebble_icons(<table> <folder of the icon set> <out folder>) copies <set>/<file>.svg to
# <out>/icons/<role-in-kebab-case>.svg for every role of the table, writes <out>/style/PbIcons.h and
# <out>/style/BaseIcons.qml, and sets PEBBLE_ICON_FILES and PEBBLE_BASE_ICON_FILES for the caller.
function(pebble_icons table set out)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${table})
  file(READ ${table} json)
  string(JSON count LENGTH "${json}" icons)
  math(EXPR last "${count} - 1")
  set(roles "")
  foreach(i RANGE ${last})
    string(JSON role MEMBER "${json}" icons ${i})
    string(JSON file GET "${json}" icons ${role})
    if(NOT EXISTS ${set}/${file}.svg)
      message(FATAL_ERROR "Icon \"${role}\" asks for ${file}.svg, which the icon set at ${set} does not have. "
                          "Run tools/setup, or correct ${table}.")
    endif()
    _pebble_kebab(${role} kebab)
    configure_file(${set}/${file}.svg ${out}/icons/${kebab}.svg COPYONLY)
    list(APPEND files ${out}/icons/${kebab}.svg)
    list(APPEND roles ${role})
    string(APPEND all "    PB_TOKEN(QUrl, ${role}, named(\"${kebab}.svg\"))\n")
  endforeach()

  string(JSON count LENGTH "${json}" base)
  math(EXPR last "${count} - 1")
  foreach(i RANGE ${last})
    string(JSON role GET "${json}" base ${i})
    if(NOT role IN_LIST roles)
      message(FATAL_ERROR "${table}: \"base\" names the role \"${role}\", which \"icons\" does not have.")
    endif()
    _pebble_kebab(${role} kebab)
    configure_file(${out}/icons/${kebab}.svg ${out}/base/${kebab}.svg COPYONLY)
    list(APPEND baseFiles ${out}/base/${kebab}.svg)
    string(APPEND base "    readonly property url ${role}: _folder + \"${kebab}.svg\"\n")
  endforeach()

  set(PEBBLE_ICON_ROLES "${all}")
  configure_file(${CMAKE_CURRENT_SOURCE_DIR}/style/PbIcons.h.in ${out}/style/PbIcons.h @ONLY)
  set(PEBBLE_ICON_ROLES "${base}")
  configure_file(${CMAKE_CURRENT_SOURCE_DIR}/style/BaseIcons.qml.in ${out}/style/BaseIcons.qml @ONLY)
  set(PEBBLE_ICON_FILES ${files} PARENT_SCOPE)
  set(PEBBLE_BASE_ICON_FILES ${baseFiles} PARENT_SCOPE)
endfunction()

# arrowDownDottedLine -> arrow-down-dotted-line
function(_pebble_kebab role result)
  string(REGEX REPLACE "([A-Z])" "-\\1" kebab ${role})
  string(TOLOWER ${kebab} kebab)
  set(${result} ${kebab} PARENT_SCOPE)
endfunction()
