# What every target of the project has in common.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(KITE_PLUGIN_DIR "${CMAKE_BINARY_DIR}/plugins")

# Paths below the project count as relative, so that a second checkout finds what the first one compiled.
find_program(KITE_CCACHE ccache)
if(KITE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER env "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}" CCACHE_NOHASHDIR=1 "${KITE_CCACHE}")
endif()

# Warnings as errors, for our own targets only.
function(kite_own_target target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
        -Woverloaded-virtual -Wcast-align -Wconversion -Wno-sign-conversion -Werror)
    target_compile_definitions(${target} PRIVATE QT_DEPRECATED_WARNINGS QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
endfunction()

# A library that exports what is marked, by the soname lib<target>.so.1.
function(kite_shared_library target)
    add_library(${target} SHARED ${ARGN})
    set_target_properties(${target} PROPERTIES VERSION 1.0.0 SOVERSION 1)
    target_link_options(${target} PRIVATE -Wl,--no-undefined)
    kite_own_target(${target})
endfunction()

set(KITE_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize takes them")
option(KITE_COVERAGE "Build for gcov" OFF)
if(KITE_SANITIZE)
    add_compile_options(-fsanitize=${KITE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${KITE_SANITIZE})
endif()
if(KITE_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()
