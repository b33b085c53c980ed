# SPDX-License-Identifier: GPL-3.0-or-later

# zr_add_test(<name> [MOUNTS] SOURCES <file>... [LIBRARIES <target>...])
#
# One test program under CTest. It runs with a home, a configuration, a system root, a user name and a
# session bus of its own, on the offscreen platform. MOUNTS: it mounts file systems, where the machine lets it.
function(zr_add_test name)
    cmake_parse_arguments(arg "MOUNTS" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE zr_warnings Qt6::Test ${arg_LIBRARIES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support)
    # Nothing is looked for there, and the name of a real directory keeps a compiler cache from serving another checkout.
    set_target_properties(${name} PROPERTIES QT_TESTCASE_BUILDDIR .)
    set(support ${PROJECT_SOURCE_DIR}/tests/support)
    set(place $<$<BOOL:${arg_MOUNTS}>:${support}/where-it-may-mount>)
    add_test(NAME ${name} COMMAND ${place} ${support}/isolated $<TARGET_FILE:${name}> COMMAND_EXPAND_LISTS)
    set_tests_properties(${name} PROPERTIES TIMEOUT 120)
endfunction()

add_custom_target(thread_tests)

# zr_uses_threads(<test>...)
#
# The thread sanitizer has something to see in these: more than one thread runs code of this project in them.
function(zr_uses_threads)
    set_tests_properties(${ARGN} PROPERTIES LABELS threads)
    add_dependencies(thread_tests ${ARGN})
endfunction()

add_custom_target(fuzz_targets)

# zr_add_fuzz_target(<name> SOURCES <file>... [LIBRARIES <target>...])
#
# A libFuzzer program; its seeds lie in corpus/<name>/ beside it. tests/support/run-fuzz-targets runs them all.
function(zr_add_fuzz_target name)
    cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE zr_warnings ${arg_LIBRARIES})
    target_compile_options(${name} PRIVATE -fsanitize=fuzzer,address)
    target_link_options(${name} PRIVATE -fsanitize=fuzzer,address)
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/fuzz)
    add_custom_target(${name}_corpus ALL
        COMMAND ${CMAKE_COMMAND} -E copy_directory ${CMAKE_CURRENT_SOURCE_DIR}/corpus/${name}
            ${PROJECT_BINARY_DIR}/fuzz/${name}.corpus)
    add_dependencies(fuzz_targets ${name} ${name}_corpus)
endfunction()
