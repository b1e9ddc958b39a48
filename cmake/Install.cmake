# SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
# SPDX-License-Identifier: MIT

# Installs the library, its headers, and the CMake package and pkg-config file for hosts.
#
# The component "Runtime" is needed to run a program, "Development" to build one.

include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/PropertiesDialog)

install(TARGETS PropertiesDialog
    EXPORT PropertiesDialogTargets
    LIBRARY
        DESTINATION ${CMAKE_INSTALL_LIBDIR}
        COMPONENT Runtime
        NAMELINK_COMPONENT Development
    PUBLIC_HEADER
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/PropertiesDialog
        COMPONENT Development
)

install(FILES ${PROJECT_SOURCE_DIR}/docs/propertiesDialog.3
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man3
    COMPONENT Development
)

# For CMake: find_package(PropertiesDialog).
install(EXPORT PropertiesDialogTargets
    NAMESPACE PropertiesDialog::
    DESTINATION ${package_dir}
    COMPONENT Development
)
set(translations_dir ${CMAKE_INSTALL_DATADIR}/${PROPERTIESDIALOG_TRANSLATIONS_SUBDIR})
configure_package_config_file(
    ${CMAKE_CURRENT_LIST_DIR}/PropertiesDialogConfig.cmake.in
    ${PROJECT_BINARY_DIR}/PropertiesDialogConfig.cmake
    INSTALL_DESTINATION ${package_dir}
    PATH_VARS translations_dir
    NO_SET_AND_CHECK_MACRO
)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/PropertiesDialogConfigVersion.cmake
    COMPATIBILITY SameMajorVersion
)
install(FILES
    ${PROJECT_BINARY_DIR}/PropertiesDialogConfig.cmake
    ${PROJECT_BINARY_DIR}/PropertiesDialogConfigVersion.cmake
    DESTINATION ${package_dir}
    COMPONENT Development
)

# For pkg-config. The file finds the prefix from its own location, so that the prefix can be moved, unless the build was
# configured with an absolute library folder.
if(IS_ABSOLUTE ${CMAKE_INSTALL_LIBDIR})
    set(pc_prefix ${CMAKE_INSTALL_PREFIX})
    set(pc_libdir ${CMAKE_INSTALL_LIBDIR})
else()
    file(RELATIVE_PATH prefix_from_pc /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
    string(REGEX REPLACE "/$" "" prefix_from_pc ${prefix_from_pc})
    set(pc_prefix "\${pcfiledir}/${prefix_from_pc}")
    set(pc_libdir "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
endif()
set(pc_includedir "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
if(IS_ABSOLUTE ${CMAKE_INSTALL_INCLUDEDIR})
    set(pc_includedir ${CMAKE_INSTALL_INCLUDEDIR})
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/PropertiesDialog.pc.in ${PROJECT_BINARY_DIR}/PropertiesDialog.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/PropertiesDialog.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT Development
)
