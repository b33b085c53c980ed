# SPDX-License-Identifier: GPL-3.0-or-later
# The language, the warnings and the sanitizers that every target of this project is built with.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)

# The presets compile much that is the same, and so does the next clone; where it lies does not matter.
find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${CCACHE})
endif()

add_library(zr_warnings INTERFACE)
target_compile_options(zr_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
    $<$<CXX_COMPILER_ID:GNU>:-Wshadow=local>
    $<$<BOOL:${ZR_WARNINGS_AS_ERRORS}>:-Werror>)
target_compile_definitions(zr_warnings INTERFACE QT_NO_CAST_FROM_ASCII QT_STRICT_ITERATORS)

if(ZR_SANITIZE STREQUAL address)
    set(ZR_SANITIZER_FLAG -fsanitize=address,undefined)
    add_compile_options(-fno-sanitize-recover=undefined)
elseif(ZR_SANITIZE STREQUAL thread)
    set(ZR_SANITIZER_FLAG -fsanitize=thread)
elseif(ZR_SANITIZE)
    message(FATAL_ERROR "ZR_SANITIZE is \"${ZR_SANITIZE}\"; it may be address or thread.")
endif()
# Compiled in two thirds of the time; what a sanitizer reports still has functions and lines.
if(ZR_SANITIZE OR ZR_FUZZ)
    add_compile_options(-O1 -g1)
endif()
if(ZR_SANITIZE)
    add_compile_options(${ZR_SANITIZER_FLAG} -fno-omit-frame-pointer)
    add_link_options(${ZR_SANITIZER_FLAG})
endif()

# The code under the fuzz targets tells the fuzzer where it has been.
if(ZR_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link,address)
    add_link_options(-fsanitize=address)
endif()
