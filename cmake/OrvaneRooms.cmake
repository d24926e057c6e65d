# What every room, program and test shares: language level, warnings, sanitizers, and the rule
# that a room sees only the rooms it links.

option(ORVANE_SANITIZE "Address and undefined-behaviour sanitizers" OFF)

# Compiling documents ahead of time takes more than half of a build. What is shipped gets it; everywhere else the engine
# reads the documents themselves.
if(CMAKE_BUILD_TYPE MATCHES "^(Release|RelWithDebInfo|MinSizeRel)$")
  set(ahead_of_time ON)
else()
  set(ahead_of_time OFF)
endif()
option(ORVANE_QML_AHEAD_OF_TIME "Compile QML documents ahead of time" ${ahead_of_time})
set(ORVANE_QML_OPTIONS)
if(NOT ORVANE_QML_AHEAD_OF_TIME)
  set(ORVANE_QML_OPTIONS NO_CACHEGEN)
endif()

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(ORVANE_CCACHE ccache)
if(ORVANE_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${ORVANE_CCACHE})
endif()

add_library(orvane_options INTERFACE)
target_compile_definitions(orvane_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
                                                    QT_DEPRECATED_WARNINGS_SINCE=0x060600)
target_compile_options(orvane_options INTERFACE $<$<NOT:$<CXX_COMPILER_ID:MSVC>>:-Wall -Wextra -Wpedantic -Wshadow
                       -Wnon-virtual-dtor -Woverloaded-virtual -Werror>)
if(ORVANE_SANITIZE)
  target_compile_options(orvane_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                                  -fno-omit-frame-pointer)
  target_link_options(orvane_options INTERFACE -fsanitize=address,undefined)
endif()

# Every module's documents: cmake --build build/release --target lint. A module adds its own linter run with
# orvane_lint(<target>); the warnings that stop it are in .qmllint.ini.
add_custom_target(lint)
function(orvane_lint target)
  add_dependencies(lint ${target})
endfunction()

# orvane_room(<room> SOURCES ... [PUBLIC libs...] [PRIVATE libs...])
# A static library orvane_<room>. Its headers are included as "<room>/Name.h" through a folder
# of its own, so that a room that does not link this one cannot include from it.
function(orvane_room room)
  cmake_parse_arguments(ARG "" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
  set(view ${CMAKE_BINARY_DIR}/rooms/${room})
  file(MAKE_DIRECTORY ${view})
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/${room} ${view}/${room} SYMBOLIC COPY_ON_ERROR)
  add_library(orvane_${room} STATIC ${ARG_SOURCES})
  set_target_properties(orvane_${room} PROPERTIES AUTOMOC ON)
  target_include_directories(orvane_${room} PUBLIC ${view})
  target_link_libraries(orvane_${room} PUBLIC ${ARG_PUBLIC} PRIVATE orvane_options ${ARG_PRIVATE})
endfunction()

# orvane_program(<name> SOURCES ... LIBS ...): an executable in bin/.
function(orvane_program name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(${name} PRIVATE orvane_options ${ARG_LIBS})
endfunction()

# orvane_test(<name> SOURCES ... LIBS ... [WINDOW] [SHARDS n] [TIMEOUT s]): a GoogleTest program. ctest knows it as a
# whole (label "whole": what ./check runs) and case by case (label "case": ctest -R Suite.Case). SHARDS spreads a long
# program over n entries that run side by side. WINDOW gives it a virtual screen. Qt Test is linked for QSignalSpy.
function(orvane_test name)
  cmake_parse_arguments(ARG "WINDOW" "SHARDS;TIMEOUT" "SOURCES;LIBS" ${ARGN})
  find_package(GTest REQUIRED)
  include(GoogleTest)
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE orvane_options Qt6::Test GTest::gtest ${ARG_LIBS})
  set(kind unit)
  set(launcher ${CMAKE_SOURCE_DIR}/tests/run)
  if(ARG_WINDOW)
    set(kind window)
    list(APPEND launcher --window)
  endif()
  set_target_properties(${name} PROPERTIES AUTOMOC ON RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests
                        TEST_LAUNCHER "${launcher}")
  _orvane_limit(limit "${ARG_TIMEOUT}")

  string(REGEX REPLACE "^test_" "" prefix ${name})
  gtest_discover_tests(${name} TEST_PREFIX ${prefix}. DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 120
                       PROPERTIES TIMEOUT ${limit} LABELS "case\\;${kind}")

  set(wholes ${name})
  if(ARG_SHARDS)
    list(APPEND kind slow)
    set(wholes)
    math(EXPR last "${ARG_SHARDS} - 1")
    foreach(shard RANGE ${last})
      list(APPEND wholes ${name}_${shard})
    endforeach()
  endif()
  foreach(whole IN LISTS wholes)
    add_test(NAME ${whole} COMMAND ${launcher} $<TARGET_FILE:${name}>)
    # A case that skips itself has not shown what it is there for.
    set_tests_properties(${whole} PROPERTIES TIMEOUT ${limit} LABELS "whole;${kind}"
                         FAIL_REGULAR_EXPRESSION "\\[  SKIPPED \\]")
  endforeach()
  if(ARG_SHARDS)
    foreach(shard RANGE ${last})
      # The longest begin first, so that the last one to end is a short one.
      set_tests_properties(${name}_${shard} PROPERTIES COST ${limit}
                           ENVIRONMENT "GTEST_TOTAL_SHARDS=${ARG_SHARDS};GTEST_SHARD_INDEX=${shard}")
    endforeach()
  endif()
endfunction()

# orvane_documents_test(<name> SOURCES ... LIBS ...): a Qt Quick Test program that runs every tst_*.qml of the calling
# folder on a window that is never shown. ctest knows it as a whole and file by file (ctest -R tst_name).
function(orvane_documents_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  target_compile_definitions(${name} PRIVATE QUICK_TEST_SOURCE_DIR="${CMAKE_CURRENT_SOURCE_DIR}")
  target_link_libraries(${name} PRIVATE orvane_options Qt6::Quick Qt6::QuickTest ${ARG_LIBS})
  set(command ${CMAKE_SOURCE_DIR}/tests/run --documents $<TARGET_FILE:${name}>)
  _orvane_limit(limit "")
  add_test(NAME ${name} COMMAND ${command})
  set_tests_properties(${name} PROPERTIES TIMEOUT ${limit} LABELS "whole;unit" FAIL_REGULAR_EXPRESSION "\nSKIP ")
  file(GLOB files CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} tst_*.qml)
  foreach(file IN LISTS files)
    string(REGEX REPLACE "\\.qml$" "" case ${file})
    add_test(NAME ${name}.${case} COMMAND ${command} -input ${CMAKE_CURRENT_SOURCE_DIR}/${file})
    set_tests_properties(${name}.${case} PROPERTIES TIMEOUT ${limit} LABELS "case;unit")
  endforeach()
endfunction()

# orvane_command_test(<name> COMMAND ... [WINDOW] [TIMEOUT s]): what is no test program, one entry that is a case and a
# whole.
function(orvane_command_test name)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "WINDOW" "TIMEOUT" "COMMAND")
  set(kind unit)
  set(launcher ${CMAKE_SOURCE_DIR}/tests/run)
  if(ARG_WINDOW)
    set(kind window)
    list(APPEND launcher --window)
  endif()
  _orvane_limit(limit "${ARG_TIMEOUT}")
  add_test(NAME ${name} COMMAND ${launcher} ${ARG_COMMAND})
  set_tests_properties(${name} PROPERTIES TIMEOUT ${limit} LABELS "whole;case;${kind}")
endfunction()

# A limit separates a program that hangs from one that is slow: with sanitizers on two cores beside another build, a program
# takes some twenty times what it takes alone and optimised.
function(_orvane_limit result seconds)
  if(NOT seconds)
    set(seconds 300)
  endif()
  if(ORVANE_SANITIZE)
    math(EXPR seconds "${seconds} * 4")
  endif()
  set(${result} ${seconds} PARENT_SCOPE)
endfunction()
