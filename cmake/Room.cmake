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
  set_property(TARGET ${target} PROPERTY VELK_FOLDERS ${ROOM_FOLDERS})
  set_property(GLOBAL APPEND PROPERTY VELK_ROOMS ${target})
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

# velk_room(<target> <STATIC|SHARED|OBJECT|MODULE> FOLDERS <folder...> [PUBLIC <folder/header...>] SOURCES <file...>
#           [PARSED <header...>|<target>])
# PARSED names what most of the sources include beside the standard library, or who includes the same.
function(velk_room target kind)
  cmake_parse_arguments(ROOM "" "" "FOLDERS;PUBLIC;SOURCES;PARSED" ${ARGN})
  add_library(${target} ${kind} ${ROOM_SOURCES})
  velk_room_headers(${target} PUBLIC FOLDERS ${ROOM_FOLDERS} PUBLIC ${ROOM_PUBLIC})
  target_link_libraries(${target} PRIVATE velk_warnings)
  # A module has a few sources only.
  if(NOT kind STREQUAL "MODULE")
    velk_parse_once(${target} ${ROOM_PARSED})
  endif()
endfunction()

# velk_write_rooms(<file>)
# Writes for the checks of the house, a line each: "folder <target> <folder>", "public <target> <header>" and
# "file <target> <library or object>" of every room.
function(velk_write_rooms file)
  get_property(rooms GLOBAL PROPERTY VELK_ROOMS)
  set(lines)
  foreach(target IN LISTS rooms)
    get_target_property(kind ${target} TYPE)
    if(kind STREQUAL "OBJECT_LIBRARY")
      # Headers that are parsed once are among the objects.
      set(objects $<FILTER:$<TARGET_OBJECTS:${target}>,EXCLUDE,gch$>)
      list(APPEND lines "file ${target} $<JOIN:${objects},\nfile ${target} >")
    elseif(NOT kind STREQUAL "INTERFACE_LIBRARY")
      list(APPEND lines "file ${target} $<TARGET_FILE:${target}>")
    endif()
    foreach(property folder:VELK_FOLDERS public:VELK_PUBLIC_HEADERS)
      string(REGEX MATCH "^(.*):(.*)$" unused ${property})
      get_target_property(values ${target} ${CMAKE_MATCH_2})
      set(word ${CMAKE_MATCH_1})
      list(TRANSFORM values PREPEND "${word} ${target} ")
      list(APPEND lines ${values})
    endforeach()
  endforeach()
  list(JOIN lines "\n" text)
  file(GENERATE OUTPUT ${file} CONTENT "${text}\n")
endfunction()
