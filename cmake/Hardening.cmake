# What people run parses bytes from outside: there a write past the end stops the
# program, and its table of functions can't be overwritten.
if(CMAKE_SYSTEM_NAME STREQUAL Linux)
  target_compile_options(vantrel_options INTERFACE
    "$<$<CONFIG:Release>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2;-fstack-protector-strong>")
  target_link_options(vantrel_options INTERFACE "$<$<CONFIG:Release>:LINKER:-z,relro,-z,now>")
endif()
