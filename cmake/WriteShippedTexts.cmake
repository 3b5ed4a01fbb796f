# cmake -DOUTPUT=<file.cpp> -DNAME=<type> -DROOM=<room> -DROOM_FOLDER=<its folder below src>
#       -DFOLDER=<the files' folder> -P WriteShippedTexts.cmake -- <file.json>...
cmake_minimum_required(VERSION 3.25)

# Some compilers take no string literal above 64 KiB.
set(longest 65535)
set(delimiter "shipped-file")

set(entries "")
set(behindDashes FALSE)
math(EXPR last "${CMAKE_ARGC} - 1")
foreach(index RANGE ${last})
  set(argument "${CMAKE_ARGV${index}}")
  if(behindDashes)
    get_filename_component(name "${argument}" NAME_WE)
    file(READ "${argument}" text)
    string(FIND "${text}" ")${delimiter}\"" ending)
    if(NOT ending EQUAL -1)
      message(FATAL_ERROR "${argument}: must not hold )${delimiter}\"")
    endif()
    file(SIZE "${argument}" size)
    if(size GREATER longest)
      message(FATAL_ERROR "${argument}: is larger than ${longest} bytes")
    endif()
    string(APPEND entries "    {\"${name}\", R\"${delimiter}(${text})${delimiter}\"},\n")
  elseif(argument STREQUAL "--")
    set(behindDashes TRUE)
  endif()
endforeach()

string(SUBSTRING ${NAME} 1 -1 function)
file(WRITE "${OUTPUT}" "// Written by cmake/WriteShippedTexts.cmake from ${FOLDER}/*.json.
#include \"${ROOM_FOLDER}/${NAME}.h\"

namespace vantrel::${ROOM} {
namespace {

constexpr simulated::ShippedText texts[] = {
${entries}};

}  // namespace

std::span<const simulated::ShippedText> s${function}() { return texts; }

}  // namespace vantrel::${ROOM}
")
