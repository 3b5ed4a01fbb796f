# utf8proc, as PkgConfig::utf8proc.
pkg_check_modules(utf8proc REQUIRED IMPORTED_TARGET libutf8proc)
if(APPLE)
  # A bundle that someone is given must not need their package manager.
  find_library(VANTREL_UTF8PROC libutf8proc.a HINTS ${utf8proc_LIBRARY_DIRS} REQUIRED)
  set_target_properties(PkgConfig::utf8proc PROPERTIES
    INTERFACE_LINK_LIBRARIES ${VANTREL_UTF8PROC} INTERFACE_LINK_DIRECTORIES "" INTERFACE_LINK_OPTIONS "")
endif()
