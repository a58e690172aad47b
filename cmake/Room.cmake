# A room is a folder below src/ with a target of its own, or a few folders that share one. Its headers are
# included as "folder/Header.h", and only a target that links the room finds them: what a room may know is
# what it links. Two include directories, which hold nothing but links to single headers, stand for each room:
#   public   what those who link the target find; installed with the packages that others build against
#   all      what the room itself finds, and whoever links <target>_internals: rooms that are one house with
#            it, and tests

# velk_link_headers(<directory> <folder below src> <header...>)
function(velk_link_headers directory folder)
  file(MAKE_DIRECTORY ${directory}/${folder})
  foreach(header IN LISTS ARGN)
    file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${folder}/${header} ${directory}/${folder}/${header} SYMBOLIC)
  endforeach()
endfunction()

# velk_room_headers(<target> <INTERFACE|PUBLIC> FOLDERS <folder...> [PUBLIC <folder/header...>])
# Without PUBLIC every header of the folders is public.
function(velk_room_headers target visibility)
  cmake_parse_arguments(ROOM "" "" "FOLDERS;PUBLIC" ${ARGN})
  set(root ${CMAKE_BINARY_DIR}/include/${target})
  # A header that has been moved must not be found where it was.
  file(REMOVE_RECURSE ${root})
  set(public ${ROOM_PUBLIC})
  foreach(folder IN LISTS ROOM_FOLDERS)
    file(GLOB headers CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR}/src/${folder}
      ${CMAKE_SOURCE_DIR}/src/${folder}/*.h)
    velk_link_headers(${root}/all ${folder} ${headers})
    if(NOT ROOM_PUBLIC)
      list(TRANSFORM headers PREPEND ${folder}/ OUTPUT_VARIABLE of_folder)
      list(APPEND public ${of_folder})
    endif()
  endforeach()
  foreach(header IN LISTS public)
    cmake_path(GET header PARENT_PATH folder)
    cmake_path(GET header FILENAME name)
    velk_link_headers(${root}/public ${folder} ${name})
  endforeach()
  set_property(TARGET ${target} PROPERTY VELK_PUBLIC_HEADERS ${public})
  target_include_directories(${target} ${visibility} $<BUILD_INTERFACE:${root}/public>)
  if(NOT visibility STREQUAL "INTERFACE")
    target_include_directories(${target} PRIVATE ${root}/all)
  endif()
  add_library(${target}_internals INTERFACE)
  target_include_directories(${target}_internals INTERFACE ${root}/all)
  get_target_property(kind ${target} TYPE)
  if(NOT kind STREQUAL "MODULE_LIBRARY")
    target_link_libraries(${target}_internals INTERFACE ${target})
  endif()
endfunction()

# velk_room(<target> <STATIC|SHARED|OBJECT|MODULE> FOLDERS <folder...> [PUBLIC <folder/header...>] SOURCES <file...>)
function(velk_room target kind)
  cmake_parse_arguments(ROOM "" "" "FOLDERS;PUBLIC;SOURCES" ${ARGN})
  add_library(${target} ${kind} ${ROOM_SOURCES})
  velk_room_headers(${target} PUBLIC FOLDERS ${ROOM_FOLDERS} PUBLIC ${ROOM_PUBLIC})
  target_link_libraries(${target} PRIVATE velk_warnings)
endfunction()
