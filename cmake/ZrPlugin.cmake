# SPDX-License-Identifier: GPL-3.0-or-later

add_custom_target(shipped_plugins)
# How many plug-ins may be replaced by a notice: each place needs a library of its own.
set(ZR_NOTICE_COUNT 8)

# zr_add_plugin(<name> SOURCES <file>... [LIBRARIES <target>...])
#
# A plug-in that ships with the launcher: lib<name>.so, where the shipped configuration looks for it, in the
# build tree and in the installed one.
function(zr_add_plugin name)
    cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_library(${name} MODULE ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE zr_warnings launcherplugin ${arg_LIBRARIES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/launcher)
    set_target_properties(${name} PROPERTIES
        LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${ZR_PLUGIN_DIR}
        INSTALL_RPATH "$ORIGIN/../.." BUILD_WITH_INSTALL_RPATH ON)
    add_dependencies(shipped_plugins ${name})
    install(TARGETS ${name} LIBRARY DESTINATION ${ZR_PLUGIN_DIR} COMPONENT plugins)
endfunction()
