# cmake -DOUTPUT=<file.cpp> -P WriteShippedDesks.cmake -- <desk.json>...
cmake_minimum_required(VERSION 3.25)

# Some compilers take no string literal above 64 KiB.
set(longest 65535)
set(delimiter "desk-file")

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

file(WRITE "${OUTPUT}" "// Written by cmake/WriteShippedDesks.cmake from desks/*.json.
#include \"platform/simulated/ShippedDeskTexts.h\"

namespace vantrel::simulated {
namespace {

constexpr ShippedDeskText texts[] = {
${entries}};

}  // namespace

std::span<const ShippedDeskText> shippedDeskTexts() { return texts; }

}  // namespace vantrel::simulated
")
