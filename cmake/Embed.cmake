# Puts files into a program, so that it needs none of them when it runs and can serve no others.
#
# quillmere_embed(TARGET FUNCTION MANIFEST): defines `std::span<const Asset> FUNCTION()` (declared
# in settings/Asset.h). Each line of the manifest is "PATH FILE...": the path that the asset goes by
# and the file, relative to the project's folder, or several that make one asset, one behind the
# other. "*" in the path and in the file stands for an asset for every file that matches.
function(quillmere_embed target function manifest)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${manifest}")
  file(STRINGS "${manifest}" lines)
  set(symbols "")
  set(entries "")
  set(files "")
  foreach(line IN LISTS lines)
    if(NOT line MATCHES "^(/[^ ]*) (.+)$")
      message(FATAL_ERROR "${manifest}: not \"PATH FILE...\": ${line}")
    endif()
    set(path "${CMAKE_MATCH_1}")
    separate_arguments(patterns UNIX_COMMAND "${CMAKE_MATCH_2}")
    set(found "")
    foreach(pattern IN LISTS patterns)
      file(GLOB matches CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${pattern}")
      if(NOT matches)
        message(FATAL_ERROR "${manifest}: no file ${pattern} (npm ci brings node_modules)")
      endif()
      list(APPEND found ${matches})
    endforeach()
    list(APPEND files ${found})
    if(path MATCHES "[*]")
      foreach(file IN LISTS found)
        cmake_path(GET file FILENAME name)
        string(REPLACE "*" "${name}" asset "${path}")
        quillmere_add_asset("${asset}" "${file}")
      endforeach()
    else()
      quillmere_add_asset("${path}" ${found})
    endif()
  endforeach()
  set(source "${CMAKE_CURRENT_BINARY_DIR}/${function}.cpp")
  file(CONFIGURE OUTPUT "${source}" @ONLY CONTENT [[
// Made by cmake/Embed.cmake.
#include "settings/Asset.h"

@symbols@
std::span<const settings::Asset> settings::@function@() {
  static const Asset assets[] = {
@entries@  };
  return assets;
}
]])
  set_source_files_properties("${source}" PROPERTIES OBJECT_DEPENDS "${files}")
  target_sources(${target} PRIVATE "${source}")
endfunction()

# Adds an asset of those files to the `symbols` and `entries` of `quillmere_embed`.
macro(quillmere_add_asset path)
  string(SHA1 hash "${path}")
  set(symbol "${function}_${hash}")
  string(APPEND symbols "asm(\".pushsection .rodata, \\\"a\\\"\\n${symbol}:\\n\"\n")
  foreach(part IN ITEMS ${ARGN})
    string(APPEND symbols "    \".incbin \\\"${part}\\\"\\n\"\n")
  endforeach()
  string(APPEND symbols "    \"${symbol}_end: .byte 0\\n.popsection\");
extern \"C\" const char ${symbol}[], ${symbol}_end[];\n")
  string(APPEND entries "      {\"${path}\", {${symbol}, ${symbol}_end}},\n")
endmacro()
