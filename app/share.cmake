# The data that the programs look for beside themselves: "models" and "filterData" below
# share/orvane-studio, as links in the build tree and as copies in an installed one.

set(share_folder share/orvane-studio)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/${share_folder})
foreach(data models filterData)
  set(source ${CMAKE_SOURCE_DIR}/data/${data})
  set(target ${CMAKE_BINARY_DIR}/${share_folder}/${data})
  file(MAKE_DIRECTORY ${source})
  if(NOT EXISTS ${target})
    file(CREATE_LINK ${source} ${target} SYMBOLIC RESULT linked)
    if(NOT linked EQUAL 0)
      file(COPY ${source} DESTINATION ${CMAKE_BINARY_DIR}/${share_folder})
    endif()
  endif()
  install(DIRECTORY ${source} DESTINATION ${share_folder})
endforeach()
