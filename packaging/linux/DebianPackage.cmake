# The Debian package: vantrel_<version>_<architecture>.deb.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vantrel)
set(CPACK_PACKAGE_CONTACT "The Vantrel developers <developers@vantrel.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "controls the monitors on a desk over DDC/CI")
set(CPACK_PACKAGE_DESCRIPTION
"Vantrel sits in the tray and controls the monitors on a desk: brightness,
contrast, volume, the input that a monitor shows and whether the computer
sends it a picture at all. It talks to the monitors over DDC/CI, the control
channel of the video cable.

The picture of a monitor that doesn't speak DDC/CI is dimmed instead, where the
desktop lets programs do that.")
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_SOURCE_DIR}/postinst)
# What Qt needs besides the libraries: a bus to show itself in the tray through,
# the folders of the icons' theme, and its plugin for Wayland.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
  "default-dbus-session-bus | dbus-session-bus, hicolor-icon-theme, qt6-wayland")
# GNOME has a tray only with this.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "gnome-shell-extension-appindicator")

include(CPack)
