# Puts files into a program, so that it needs none of them when it runs and can serve no others.
#
# quillmere_embed(TARGET FUNCTION MANIFEST): defines `std::span<const Asset> FUNCTION()` (declared
# in settings/Asset.h). Each line of the manifest is "PATH FILE": the path that the asset goes by
# and the file, relative to the project's folder. "*" in both stands for every file that matches.
function(quillmere_embed target function manifest)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${manifest}")
  file(STRINGS "${manifest}" lines)
  set(symbols "")
  set(entries "")
  set(files "")
  foreach(line IN LISTS lines)
    if(NOT line MATCHES "^(/[^ ]*) (.+)$")
      message(FATAL_ERROR "${manifest}: not \"PATH FILE\": ${line}")
    endif()
    set(path "${CMAKE_MATCH_1}")
    file(GLOB found CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${CMAKE_MATCH_2}")
    if(NOT found)
      message(FATAL_ERROR "${manifest}: no file ${CMAKE_MATCH_2} (npm ci brings node_modules)")
    endif()
    foreach(file IN LISTS found)
      list(LENGTH files number)
      list(APPEND files "${file}")
      cmake_path(GET file FILENAME name)
      string(REPLACE "*" "${name}" asset "${path}")
      set(symbol "${function}_${number}")
      string(APPEND symbols "asm(\".pushsection .rodata, \\\"a\\\"\\n\"
    \"${symbol}: .incbin \\\"${file}\\\"\\n\"
    \"${symbol}_end: .byte 0\\n.popsection\");
extern \"C\" const char ${symbol}[], ${symbol}_end[];\n")
      string(APPEND entries "      {\"${asset}\", {${symbol}, ${symbol}_end}},\n")
    endforeach()
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
