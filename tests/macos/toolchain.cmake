# SPDX-License-Identifier: MIT
# Compiles and links for a Mac on Linux: clang's Apple target, the declarations and link stubs of
# tests/macos-declarations, LLVM's libc++ (whose library names and gaps are Apple's) and the C
# library's headers of a Linux of the same architecture. What comes out proves that the sources fit
# the declarations; it must never be shipped. ZEPHRINE_APPLE_ARCH is arm64 (the default) or x86_64.
set(CMAKE_SYSTEM_NAME Darwin)
set(ZEPHRINE_APPLE_ARCH "arm64" CACHE STRING "arm64 or x86_64")
set(CMAKE_SYSTEM_PROCESSOR ${ZEPHRINE_APPLE_ARCH})
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ZEPHRINE_APPLE_ARCH ZEPHRINE_STUBS)

set(declarations ${CMAKE_CURRENT_LIST_DIR}/../macos-declarations)
cmake_path(NORMAL_PATH declarations)
set(ZEPHRINE_STUBS ${declarations}/stubs CACHE PATH "Root of the link stubs")
# One version of everything: the one that the distribution's commands without a version lead to.
execute_process(COMMAND llvm-config --prefix
  OUTPUT_VARIABLE llvm OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
if(ZEPHRINE_APPLE_ARCH STREQUAL "arm64")
  set(c_headers /usr/aarch64-linux-gnu/include)
else()
  set(c_headers /usr/include/x86_64-linux-gnu /usr/include)
endif()

set(CMAKE_CXX_COMPILER ${llvm}/bin/clang++)
set(CMAKE_OBJCXX_COMPILER ${llvm}/bin/clang++)
set(CMAKE_AR ${llvm}/bin/llvm-ar CACHE FILEPATH "")
set(CMAKE_RANLIB ${llvm}/bin/llvm-ranlib CACHE FILEPATH "")
set(CMAKE_INSTALL_NAME_TOOL ${llvm}/bin/llvm-install-name-tool CACHE FILEPATH "")
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(CMAKE_HAVE_LIBC_PTHREAD TRUE CACHE BOOL "")
# CMake asks a Mac's own tools for these.
set(CMAKE_OSX_SYSROOT "" CACHE STRING "")
set(CMAKE_OSX_DEPLOYMENT_TARGET "" CACHE STRING "")

# clang predefines __nonnull on this target, which glibc's headers use as a name of their own, and
# does not imply _GNU_SOURCE. __NO_CTYPE keeps glibc's inline functions out of libc++'s way.
string(CONCAT flags
  "-target ${ZEPHRINE_APPLE_ARCH}-apple-macosx13.0 -nostdlibinc -U__nonnull -D_GNU_SOURCE "
  "-D__NO_CTYPE -isystem ${declarations} -isystem ${llvm}/include/c++/v1")
foreach(folder IN LISTS c_headers)
  string(APPEND flags " -isystem ${folder}")
endforeach()
set(CMAKE_CXX_FLAGS_INIT "${flags}")
set(CMAKE_OBJCXX_FLAGS_INIT "${flags}")

# The C++ library's stub lists what the libc++ installed here exports: one ABI on both systems.
set(cxx_stub ${CMAKE_BINARY_DIR}/cxx-stub/libc++.tbd)
if(NOT EXISTS ${cxx_stub})
  execute_process(
    COMMAND ${llvm}/bin/llvm-nm --dynamic --defined-only --format=just-symbols
            ${llvm}/lib/libc++.so.1 ${llvm}/lib/libc++abi.so.1
    OUTPUT_VARIABLE names COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX REPLACE "@+[A-Za-z0-9_.+]*" "" names "${names}")
  string(REGEX REPLACE "\n[^\n]*:\n|^[^\n]*:\n" "\n" names "${names}")
  string(STRIP "${names}" names)
  string(REGEX REPLACE "\n+" "', '_" names "${names}")
  file(WRITE ${cxx_stub} "--- !tapi-tbd
tbd-version: 4
targets: [ arm64-macos, x86_64-macos ]
install-name: '/usr/lib/libc++.1.dylib'
exports:
  - targets: [ arm64-macos, x86_64-macos ]
    symbols: [ '_${names}' ]
...
")
endif()
string(CONCAT CMAKE_EXE_LINKER_FLAGS_INIT
  "-fuse-ld=lld -isysroot ${ZEPHRINE_STUBS} -nostdlib -L${CMAKE_BINARY_DIR}/cxx-stub "
  "-lSystem -lc++ -lobjc -Wno-unused-command-line-argument")
