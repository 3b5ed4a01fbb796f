# What makes a program an application of macOS.

# vantrel_mac_bundle(<target>): Vantrel.app, signed for this computer only where the
# system's signing tool is. script/package-mac signs it for others, with the hardened
# runtime, which would keep debuggers and sanitizers out here.
function(vantrel_mac_bundle target)
  set(folder ${PROJECT_SOURCE_DIR}/packaging/macos)
  set(icon ${folder}/Vantrel.icns)
  target_sources(${target} PRIVATE ${icon})
  set_source_files_properties(${icon} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
  set_target_properties(${target} PROPERTIES
    MACOSX_BUNDLE ON OUTPUT_NAME Vantrel MACOSX_BUNDLE_INFO_PLIST ${folder}/Info.plist.in)
  find_program(VANTREL_CODESIGN codesign)
  if(VANTREL_CODESIGN)
    add_custom_command(TARGET ${target} POST_BUILD VERBATIM
      COMMAND ${VANTREL_CODESIGN} --force --sign - $<TARGET_BUNDLE_DIR:${target}>)
  endif()
endfunction()
