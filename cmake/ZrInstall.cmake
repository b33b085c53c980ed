# SPDX-License-Identifier: GPL-3.0-or-later
# Where things are installed. Every run path is relative to the file that holds it, so that the installed
# tree may be moved as a whole. The build tree is laid out alike and has the same run paths: those that CMake would give
# it end in a colon, and make every start look for each library in the working directory, too.
#
# What is installed belongs to one component, which becomes a package: launcher, plugins, dev or simulator.
# What names none belongs to the launcher.
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME launcher)

if(NOT DEFINED CMAKE_INSTALL_LIBDIR AND CMAKE_LIBRARY_ARCHITECTURE)
    set(CMAKE_INSTALL_LIBDIR lib/${CMAKE_LIBRARY_ARCHITECTURE} CACHE PATH "Libraries, below the prefix")
endif()
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(ZR_INCLUDE_DIR ${CMAKE_INSTALL_INCLUDEDIR}/zr-launcher)
set(ZR_PLUGIN_DIR ${CMAKE_INSTALL_LIBDIR}/zr-launcher/plugins)
set(ZR_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/ZrLauncher)

# zr_install_library(<target> EXPORT_NAME <name> HEADERS <header>...)
#
# Gives a shared library of platform/ its include path and version, and installs it with its headers.
# Programs find it as ZrLauncher::<name>.
function(zr_install_library target)
    cmake_parse_arguments(arg "" "EXPORT_NAME" "HEADERS" ${ARGN})
    add_library(ZrLauncher::${arg_EXPORT_NAME} ALIAS ${target})
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>
        $<INSTALL_INTERFACE:${ZR_INCLUDE_DIR}/${target}>)
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:zr_warnings>)
    # Its own functions need not be looked up by name at every start. Those who compile against Qt take addresses of
    # functions from the library itself, so that signals still compare equal.
    target_link_options(${target} PRIVATE -Wl,-Bsymbolic-functions)
    set_target_properties(${target} PROPERTIES
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
        EXPORT_NAME ${arg_EXPORT_NAME} INSTALL_RPATH "$ORIGIN" BUILD_WITH_INSTALL_RPATH ON
        # One directory for all, as when they are installed: the dynamic linker looks for each library of Qt's in all of
        # ours first.
        LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR})
    install(TARGETS ${target} EXPORT ZrLauncherTargets LIBRARY
        DESTINATION ${CMAKE_INSTALL_LIBDIR} NAMELINK_COMPONENT dev)
    install(FILES ${arg_HEADERS} DESTINATION ${ZR_INCLUDE_DIR}/${target} COMPONENT dev)
endfunction()

# Writes and installs the package that plug-ins built elsewhere find with find_package(ZrLauncher).
function(zr_install_package)
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/ZrLauncherConfig.cmake.in
        ${PROJECT_BINARY_DIR}/ZrLauncherConfig.cmake INSTALL_DESTINATION ${ZR_CMAKE_DIR})
    write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZrLauncherConfigVersion.cmake
        COMPATIBILITY SameMinorVersion)
    install(EXPORT ZrLauncherTargets NAMESPACE ZrLauncher:: DESTINATION ${ZR_CMAKE_DIR} COMPONENT dev)
    install(FILES ${PROJECT_BINARY_DIR}/ZrLauncherConfig.cmake
        ${PROJECT_BINARY_DIR}/ZrLauncherConfigVersion.cmake DESTINATION ${ZR_CMAKE_DIR} COMPONENT dev)
endfunction()
