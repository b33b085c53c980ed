# SPDX-License-Identifier: GPL-3.0-or-later

# zr_add_test(<name> SOURCES <file>... [LIBRARIES <target>...])
#
# One test program under CTest. It runs with a home, a configuration, a system root, a user name and a
# session bus of its own, on the offscreen platform.
function(zr_add_test name)
    cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE zr_warnings Qt6::Test ${arg_LIBRARIES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support)
    add_test(NAME ${name} COMMAND ${PROJECT_SOURCE_DIR}/tests/support/isolated $<TARGET_FILE:${name}>)
    set_tests_properties(${name} PROPERTIES TIMEOUT 120)
endfunction()
