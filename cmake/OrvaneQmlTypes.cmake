# The native types that documents import. A class says in its own header what it is to them (QML_ELEMENT,
# QML_UNCREATABLE); its room says here which module it belongs to. Out of both come, for each module, the description
# that the linter and editors read and the source that registers its types at version 1.0.

set(ORVANE_QML_TYPES_FOLDER ${CMAKE_BINARY_DIR}/qml)

# orvane_qml_type(<room> <header> [WITH headers...] [MODULE name] [DEPENDS modules...])
# The module is called like the header unless another is named. WITH has the class that this one derives from, where
# documents see what it has and not itself, and value types that it shows; DEPENDS are modules of ours whose types this
# one shows.
function(orvane_qml_type room header)
  cmake_parse_arguments(ARG "" "MODULE" "DEPENDS;WITH" ${ARGN})
  cmake_path(GET header STEM type)
  if(NOT ARG_MODULE)
    set(ARG_MODULE ${type})
  endif()
  # What moc reads out of these headers alone: a room's whole list would put all of its types into one module.
  set(described)
  foreach(file IN ITEMS ${header} ${ARG_WITH})
    set(source ${CMAKE_CURRENT_SOURCE_DIR}/${file})
    set(output ${CMAKE_BINARY_DIR}/qml_types/${file}.moc)
    set(folders "$<TARGET_PROPERTY:orvane_${room},INCLUDE_DIRECTORIES>")
    add_custom_command(OUTPUT ${output}.json
      COMMAND Qt6::moc "-I$<JOIN:${folders},;-I>" --output-json -o ${output} ${source}
      DEPENDS ${source}
      COMMENT "Describing ${file}"
      COMMAND_EXPAND_LISTS VERBATIM)
    list(APPEND described ${output}.json)
  endforeach()
  add_custom_target(describe_${type} DEPENDS ${described})
  set_property(GLOBAL APPEND PROPERTY ORVANE_QML_MODULES ${ARG_MODULE})
  set_property(GLOBAL APPEND PROPERTY ORVANE_QML_ROOMS ${room})
  set_property(GLOBAL APPEND PROPERTY ORVANE_QML_TYPES_OF_${ARG_MODULE} ${type})
  set_property(GLOBAL APPEND PROPERTY ORVANE_QML_FILES_OF_${ARG_MODULE} ${described})
  set_property(GLOBAL APPEND PROPERTY ORVANE_QML_DEPENDS_OF_${ARG_MODULE} ${ARG_DEPENDS})
endfunction()

# orvane_qml_modules(<library>)
# The modules of all types named so far, in an object library: a program that links it has them. Their descriptions
# alone, which compile nothing, are the target <library>_descriptions.
function(orvane_qml_modules library)
  add_library(${library} OBJECT)
  # The descriptions of the toolkit's own types come with its libraries to those who ask.
  set_target_properties(${library} PROPERTIES QT_CONSUMES_METATYPES TRUE AUTOMOC OFF)
  target_link_libraries(${library} PUBLIC Qt6::Quick PRIVATE orvane_options)

  get_property(rooms GLOBAL PROPERTY ORVANE_QML_ROOMS)
  list(REMOVE_DUPLICATES rooms)
  foreach(room IN LISTS rooms)
    target_link_libraries(${library} PUBLIC orvane_${room})
    # The registering source includes a header by its bare name.
    target_include_directories(${library} PRIVATE ${CMAKE_SOURCE_DIR}/${room})
  endforeach()

  get_property(modules GLOBAL PROPERTY ORVANE_QML_MODULES)
  list(REMOVE_DUPLICATES modules)
  foreach(module IN LISTS modules)
    _orvane_qml_module(${library} ${module})
  endforeach()
  list(TRANSFORM modules REPLACE "(.+)" "${ORVANE_QML_TYPES_FOLDER}/\\1/types.qmltypes" OUTPUT_VARIABLE descriptions)
  add_custom_target(${library}_descriptions DEPENDS ${descriptions})
  add_dependencies(${library} ${library}_descriptions)
endfunction()

function(_orvane_qml_module library module)
  get_property(types GLOBAL PROPERTY ORVANE_QML_TYPES_OF_${module})
  get_property(described GLOBAL PROPERTY ORVANE_QML_FILES_OF_${module})
  get_property(depends GLOBAL PROPERTY ORVANE_QML_DEPENDS_OF_${module})
  list(TRANSFORM types PREPEND describe_ OUTPUT_VARIABLE describing)
  list(TRANSFORM depends PREPEND "depends ")
  list(JOIN depends "\n" depends)

  set(folder ${ORVANE_QML_TYPES_FOLDER}/${module})
  file(CONFIGURE OUTPUT ${folder}/qmldir
    CONTENT "module ${module}\ntypeinfo types.qmltypes\ndepends QtQuick\n${depends}\n")
  set(collected ${CMAKE_BINARY_DIR}/qml_types/${module}.json)
  set(registration ${CMAKE_BINARY_DIR}/qml_types/${module}.cpp)
  set(toolkit "$<FILTER:$<TARGET_PROPERTY:${library},SOURCES>,INCLUDE,metatypes.json$>")
  add_custom_command(OUTPUT ${registration} ${folder}/types.qmltypes
    COMMAND Qt6::moc --collect-json -o ${collected} ${described}
    COMMAND Qt6::qmltyperegistrar --import-name ${module} --major-version 1 --minor-version 0
            "--foreign-types=$<JOIN:${toolkit},$<COMMA>>" --generate-qmltypes=${folder}/types.qmltypes
            -o ${registration} ${collected}
    DEPENDS ${described} ${describing}
    COMMENT "Registering module ${module}"
    VERBATIM)
  target_sources(${library} PRIVATE ${registration})
endfunction()
