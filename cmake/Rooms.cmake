# A room is a folder of the project. Its target offers its headers as "room/Header.h" through a
# folder that holds nothing but that room, so a target sees the rooms it links to and no others:
# an include that runs against the architecture does not compile. CMAKE_VERIFY_INTERFACE_HEADER_SETS
# makes sure that every header compiles alone.
function(quillmere_room target)
  cmake_path(GET CMAKE_CURRENT_SOURCE_DIR FILENAME room)
  set(view "${PROJECT_BINARY_DIR}/rooms/${room}")
  file(MAKE_DIRECTORY "${view}")
  file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${view}/${room}" SYMBOLIC)

  get_target_property(type ${target} TYPE)
  set(scope PUBLIC)
  if(type STREQUAL "INTERFACE_LIBRARY")
    set(scope INTERFACE)
  endif()
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" *.h)
  list(TRANSFORM headers PREPEND "${view}/${room}/")
  target_sources(${target} ${scope} FILE_SET HEADERS BASE_DIRS "${view}" FILES ${headers})
endfunction()
