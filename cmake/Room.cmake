# A room is a folder below src/ with a target of its own. Its headers are included as "room/Header.h",
# and only a target that links the room finds them: every room's include directory holds nothing but
# links to that room. So what a room may know is what it links.

# velk_room_headers(<target> <INTERFACE|PUBLIC> <folder below src>...)
function(velk_room_headers target visibility)
  set(root ${CMAKE_BINARY_DIR}/include/${target})
  foreach(folder IN LISTS ARGN)
    cmake_path(GET folder PARENT_PATH parent)
    file(MAKE_DIRECTORY ${root}/${parent})
    if(NOT EXISTS ${root}/${folder})
      file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${folder} ${root}/${folder} SYMBOLIC)
    endif()
  endforeach()
  target_include_directories(${target} ${visibility} ${root})
endfunction()

# velk_room(<target> <STATIC|SHARED|OBJECT> FOLDERS <folder...> SOURCES <file...>)
function(velk_room target kind)
  cmake_parse_arguments(ROOM "" "" "FOLDERS;SOURCES" ${ARGN})
  add_library(${target} ${kind} ${ROOM_SOURCES})
  velk_room_headers(${target} PUBLIC ${ROOM_FOLDERS})
  target_link_libraries(${target} PRIVATE velk_warnings)
endfunction()
