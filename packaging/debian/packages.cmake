# SPDX-License-Identifier: GPL-3.0-or-later
# The Debian packages that cpack makes of the components. They belong below /usr: use the preset "package".

set(ZR_PACKAGE_MAINTAINER "Talvenor <zr-launcher@talvenor.example>" CACHE STRING
    "Who answers for the packages: name and address")

set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL launcher plugins dev simulator)
# Some files go to /etc, outside the prefix.
set(CPACK_SET_DESTDIR ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE zr-launcher)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${ZR_PACKAGE_MAINTAINER})
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Packages of other libraries are found by what the programs are linked with. Our own go by equal versions: the
# libraries of one build fit that build only.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR})
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
if(CMAKE_CROSSCOMPILING)
    execute_process(COMMAND dpkg-architecture -t ${CMAKE_LIBRARY_ARCHITECTURE} -q DEB_HOST_ARCH
        OUTPUT_VARIABLE CPACK_DEBIAN_PACKAGE_ARCHITECTURE OUTPUT_STRIP_TRAILING_WHITESPACE
        COMMAND_ERROR_IS_FATAL ANY)
    # dpkg-shlibdeps follows links before it asks what a library belongs to.
    file(REAL_PATH ${CMAKE_SYSROOT} ZR_SYSROOT)
    list(APPEND CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS
        ${ZR_SYSROOT}/lib/${CMAKE_LIBRARY_ARCHITECTURE} ${ZR_SYSROOT}/usr/lib/${CMAKE_LIBRARY_ARCHITECTURE})
    configure_file(debian/dpkg-query.in debian/cross/dpkg-query @ONLY)
    configure_file(debian/cross.cmake.in debian/cross.cmake @ONLY)
    set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_BINARY_DIR}/debian/cross.cmake)
endif()

set(CPACK_DEBIAN_LAUNCHER_PACKAGE_NAME zr-launcher)
set(CPACK_DEBIAN_LAUNCHER_PACKAGE_SECTION x11)
set(CPACK_DEBIAN_LAUNCHER_DESCRIPTION "full-screen shell of a handheld test instrument for telecom lines
The first program on the instrument's board. It loads measurement and settings
functions as plug-in libraries, shows them as icons, one page per collection,
and gives their windows the screen.

The service that mounts flash drives for it and the libraries that plug-ins
are linked with are here as well.")
# What is run as a command, a service or a file: rsync copies to flash drives, amixer sets the sound, sudo runs
# shutdown and the mount helper (regular expressions came with 1.9.10), UDisks2 tells of drives, udevd of keys.
# fontconfig fills the cache of fonts, which a read-only root file system could never do later.
string(CONCAT CPACK_DEBIAN_LAUNCHER_PACKAGE_DEPENDS
    "alsa-utils, dbus, fontconfig, fonts-liberation, rsync, sudo (>= 1.9.10), "
    "systemd, systemd-sysv, udev, udisks2")
set(CPACK_DEBIAN_LAUNCHER_PACKAGE_RECOMMENDS "zr-launcher-plugins")
set(CPACK_DEBIAN_LAUNCHER_PACKAGE_SUGGESTS "ntfs-3g, qt6-qpa-plugins")

set(CPACK_DEBIAN_PLUGINS_PACKAGE_NAME zr-launcher-plugins)
set(CPACK_DEBIAN_PLUGINS_PACKAGE_SECTION x11)
set(CPACK_DEBIAN_PLUGINS_DESCRIPTION "plug-ins that ship with the instrument's full-screen shell
System information, network, reports, sound and refresh rate, which the shell
shows when nothing else was configured, and the notices that stand in for
plug-ins that crash.")
set(CPACK_COMPONENT_PLUGINS_DEPENDS launcher)

set(CPACK_DEBIAN_DEV_PACKAGE_NAME zr-launcher-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_DESCRIPTION "files to build plug-ins for the instrument's full-screen shell
Headers and the CMake package ZrLauncher with the libraries that plug-ins are
linked with.")
set(CPACK_COMPONENT_DEV_DEPENDS launcher)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "qt6-base-dev (>= 6.4)")

set(CPACK_DEBIAN_SIMULATOR_PACKAGE_NAME zr-launcher-simulator)
set(CPACK_DEBIAN_SIMULATOR_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_SIMULATOR_DESCRIPTION "simulated hardware for the instrument's full-screen shell
Measurement cards, a battery, flash drives and a screen that exist on a desk
only, and scripts that run the shell as an instrument with them.")
set(CPACK_DEBIAN_SIMULATOR_PACKAGE_DEPENDS dbus)
set(CPACK_DEBIAN_SIMULATOR_PACKAGE_RECOMMENDS "dosfstools, imagemagick, x11vnc, xdotool, xvfb, zr-launcher")

# All units, and those of them that are started at boot; the others are started by these.
file(GLOB units ${PROJECT_SOURCE_DIR}/packaging/systemd/*.service.in)
set(UNITS)
set(ENABLED_UNITS)
foreach(unit IN LISTS units)
    get_filename_component(name ${unit} NAME)
    string(REGEX REPLACE "\\.in$" "" name ${name})
    list(APPEND UNITS ${name})
    file(STRINGS ${unit} installed REGEX "^\\[Install\\]")
    if(installed)
        list(APPEND ENABLED_UNITS ${name})
    endif()
endforeach()
list(JOIN UNITS " " UNITS)
list(JOIN ENABLED_UNITS " " ENABLED_UNITS)

foreach(script postinst prerm postrm)
    configure_file(debian/${script}.in debian/${script} @ONLY
        FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
    list(APPEND CPACK_DEBIAN_LAUNCHER_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_BINARY_DIR}/debian/${script})
endforeach()
list(APPEND CPACK_DEBIAN_LAUNCHER_PACKAGE_CONTROL_EXTRA
    ${CMAKE_CURRENT_SOURCE_DIR}/debian/conffiles ${CMAKE_CURRENT_SOURCE_DIR}/debian/triggers)

configure_file(debian/changelog.in debian/changelog @ONLY)
gzip(${CMAKE_CURRENT_BINARY_DIR}/debian/changelog ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    set(package ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    set(directory ${CMAKE_INSTALL_DATAROOTDIR}/doc/${package})
    install(FILES debian/copyright ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz
        DESTINATION ${directory} COMPONENT ${component})
    if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/debian/${package}.lintian-overrides)
        install(FILES debian/${package}.lintian-overrides DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/lintian/overrides
            RENAME ${package} COMPONENT ${component})
    endif()
endforeach()

include(CPack)
