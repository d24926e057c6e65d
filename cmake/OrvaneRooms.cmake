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

# orvane_test(<name> SOURCES ... LIBS ... [WINDOW] [TIMEOUT s]): a GoogleTest program, one entry in
# ctest. Qt Test is linked for QSignalSpy. WINDOW runs it on a virtual screen with the software OpenGL
# driver, as the real window is drawn.
function(orvane_test name)
  cmake_parse_arguments(ARG "WINDOW" "TIMEOUT" "SOURCES;LIBS" ${ARGN})
  find_package(GTest REQUIRED)
  add_executable(${name} ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  target_link_libraries(${name} PRIVATE orvane_options Qt6::Test GTest::gtest ${ARG_LIBS})
  set(window)
  if(ARG_WINDOW)
    set(window WINDOW)
  endif()
  orvane_add_test(${name} COMMAND $<TARGET_FILE:${name}> TIMEOUT "${ARG_TIMEOUT}" ${window})
endfunction()

# orvane_add_test(<name> COMMAND ... [WINDOW] [TIMEOUT s]): the environment every test runs in.
function(orvane_add_test name)
  cmake_parse_arguments(ARG "WINDOW" "TIMEOUT" "COMMAND" ${ARGN})
  set(platform offscreen)
  set(screen)
  if(ARG_WINDOW)
    set(platform xcb)
    set(screen xvfb-run -a -s "-screen 0 1600x1200x24 -nolisten tcp")
  endif()
  add_test(NAME ${name} COMMAND ${screen} ${ARG_COMMAND})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 300)
  endif()
  set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} ENVIRONMENT
    "QT_QPA_PLATFORM=${platform};LIBGL_ALWAYS_SOFTWARE=1;LC_ALL=C.UTF-8;UBSAN_OPTIONS=print_stacktrace=1;LSAN_OPTIONS=suppressions='${CMAKE_SOURCE_DIR}/tests/lsan.supp':print_suppressions=0")
endfunction()
