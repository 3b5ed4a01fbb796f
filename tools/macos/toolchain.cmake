# Builds the branch for macOS of this project's CMake on Linux, to see that it configures,
# compiles and links: cmake --toolchain tools/macos/toolchain.cmake -S . -B build/macos-check
# What comes out must never be run or shipped. It is compiled against stand-ins for the
# system's headers, and with the C library's constants and structures of another system.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR arm64)
set(CMAKE_SYSTEM_VERSION 22.0)

get_filename_component(tools "${CMAKE_CURRENT_LIST_DIR}" ABSOLUTE)
get_filename_component(top "${tools}/../.." ABSOLUTE)
set(VANTREL_ALLOWED_SYMBOLS "${top}/tests/macos/allowed-symbols.txt" CACHE FILEPATH "What the program may link")
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES VANTREL_ALLOWED_SYMBOLS prepared flags)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

# Stubs to link with, headers of the libraries that Linux shares, and where CMake finds these:
# once for the build, not again for each thing that CMake tries.
if(NOT DEFINED prepared)
  set(prepared "${CMAKE_BINARY_DIR}/prepared")
  execute_process(
    COMMAND python3 -B "${tools}/prepare.py" "${prepared}" "${VANTREL_ALLOWED_SYMBOLS}"
    OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
endif()

# No SDK, and the version in the target's name alone.
set(CMAKE_OSX_SYSROOT "" CACHE STRING "" FORCE)
set(CMAKE_OSX_DEPLOYMENT_TARGET "" CACHE STRING "" FORCE)
foreach(language C CXX OBJC OBJCXX)
  set(CMAKE_${language}_COMPILER_TARGET arm64-apple-macos13)
  set(CMAKE_${language}_COMPILER /usr/bin/clang++-16)
  set(CMAKE_${language}_FLAGS_INIT "${flags}")
endforeach()
set(CMAKE_C_COMPILER /usr/bin/clang-16)
set(CMAKE_OBJC_COMPILER /usr/bin/clang-16)
set(CMAKE_AR /usr/bin/llvm-ar-16)
set(CMAKE_RANLIB /usr/bin/llvm-ranlib-16)
set(CMAKE_INSTALL_NAME_TOOL /usr/bin/llvm-install-name-tool-16)
set(CMAKE_EXE_LINKER_FLAGS_INIT
  "-fuse-ld=/usr/bin/ld64.lld-16 -nostdlib -F${prepared}/stubs -L${prepared}/stubs -Wl,-platform_version,macos,13.0,13.0 -Wl,--error-limit=0 -lSystem -lc++ -lobjc -lcompiler-rt")

set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH "${prepared}")
set(nlohmann_json_DIR "${prepared}/packages")
set(CLI11_DIR "${prepared}/packages")
set(ENV{PKG_CONFIG_LIBDIR} "${prepared}/packages")
set(ENV{PKG_CONFIG_PATH} "")
