# Installs ${build} into the folder ${destination} and compares what comes there
# with ${list}.
file(REMOVE_RECURSE ${destination})
set(ENV{DESTDIR} ${destination})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${build} --prefix /usr OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

file(GLOB_RECURSE found LIST_DIRECTORIES false RELATIVE ${destination} ${destination}/*)
file(STRINGS ${list} wanted)
list(SORT found)
list(SORT wanted)
if(NOT found STREQUAL wanted)
  list(JOIN found "\n  " found)
  list(JOIN wanted "\n  " wanted)
  message(FATAL_ERROR "Installed was\n  ${found}\ninstead of\n  ${wanted}")
endif()
