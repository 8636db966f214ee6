# Files built into the program. This file is also the script that writes their source.
if(CMAKE_SCRIPT_MODE_FILE STREQUAL CMAKE_CURRENT_LIST_FILE)
  set(arrays "")
  set(rows "")
  set(number 0)
  string(REPLACE "|" ";" FILES "${FILES}")
  foreach(file IN LISTS FILES)
    file(READ ${file} bytes HEX)
    string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
    get_filename_component(name ${file} NAME)
    string(APPEND arrays "const unsigned char file${number}[] = {${bytes}0};\n")
    string(APPEND rows "    {\"${name}\", file${number}, sizeof(file${number}) - 1},\n")
    math(EXPR number "${number} + 1")
  endforeach()
  file(WRITE ${OUTPUT} "// Written by the build.
#include \"base/Embedded.h\"

namespace zub {
namespace {
${arrays}
const EmbeddedFile files[] = {
${rows}};
}  // namespace

std::span<const EmbeddedFile> ${SYMBOL}() { return files; }

}  // namespace zub
")
  return()
endif()

# zub_embed(TARGET SYMBOL FILE...): builds files into the target as the function
#   std::span<const EmbeddedFile> SYMBOL();   (base/Embedded.h)
function(zub_embed target symbol)
  set(output ${CMAKE_CURRENT_BINARY_DIR}/${symbol}.cpp)
  list(JOIN ARGN "|" files)
  add_custom_command(
    OUTPUT ${output}
    COMMAND ${CMAKE_COMMAND} "-DFILES=${files}" -DSYMBOL=${symbol} -DOUTPUT=${output} -P
            ${PROJECT_SOURCE_DIR}/cmake/Embed.cmake
    DEPENDS ${ARGN} ${PROJECT_SOURCE_DIR}/cmake/Embed.cmake
    VERBATIM)
  target_sources(${target} PRIVATE ${output})
endfunction()
