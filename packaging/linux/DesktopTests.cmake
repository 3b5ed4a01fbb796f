# What desktops and package tools say about the installed files. A tool that is
# missing leaves out its own test; script/bootstrap --checks installs them all.
find_program(VANTREL_DESKTOP_FILE_VALIDATE desktop-file-validate)
find_program(VANTREL_APPSTREAMCLI appstreamcli)
find_program(VANTREL_GROFF groff)

set(installed ${CMAKE_CURRENT_BINARY_DIR}/installed)
add_test(NAME install COMMAND ${CMAKE_COMMAND}
  -D build=${PROJECT_BINARY_DIR} -D destination=${installed} -D list=${CMAKE_CURRENT_SOURCE_DIR}/installed.txt
  -P ${CMAKE_CURRENT_SOURCE_DIR}/CheckInstall.cmake)
set_tests_properties(install PROPERTIES FIXTURES_SETUP installed)

# vantrel_installed_test(<name> <command>...): a test of what the test `install` left.
function(vantrel_installed_test name)
  add_test(NAME ${name} COMMAND ${ARGN})
  set_tests_properties(${name} PROPERTIES FIXTURES_REQUIRED installed)
endfunction()

vantrel_installed_test(installed_program ${installed}/usr/bin/vantrel --version)
set_tests_properties(installed_program PROPERTIES PASS_REGULAR_EXPRESSION "^vantrel ${PROJECT_VERSION}\n$")
if(VANTREL_DESKTOP_FILE_VALIDATE)
  vantrel_installed_test(desktop_file ${VANTREL_DESKTOP_FILE_VALIDATE}
    ${installed}/usr/share/applications/${application}.desktop)
endif()
if(VANTREL_APPSTREAMCLI)
  # The whole tree, because what the metainfo names has to be there.
  vantrel_installed_test(metainfo ${VANTREL_APPSTREAMCLI} validate-tree --no-net --no-color ${installed})
endif()
if(VANTREL_GROFF)
  add_test(NAME manual COMMAND ${VANTREL_GROFF} -man -ww -z -Tutf8 ${CMAKE_CURRENT_SOURCE_DIR}/vantrel.1)
  # Warnings are no failure to groff.
  set_tests_properties(manual PROPERTIES FAIL_REGULAR_EXPRESSION ".")
endif()
