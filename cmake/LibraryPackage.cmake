# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

# What lets others find the libraries: from this build, and from where they are installed.
include(CMakePackageConfigHelpers)

get_property(libraries GLOBAL PROPERTY ZENTOR_LIBRARIES)
set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/PXUiSchedulerWidgets")
get_property(panel_headers GLOBAL PROPERTY ZENTOR_PANEL_HEADERS)
list(TRANSFORM panel_headers PREPEND "${PROJECT_SOURCE_DIR}/Lib/UI/SchedulerWidgets/")

# Each lies beside the targets of its kind.
set(package_include_dir "${PXUISCHEDULER_INCLUDE_DIR}")
set(translations_dir "${CMAKE_INSTALL_DATADIR}/PXUiSchedulerWidgets/translations")
set(package_translations_dir "${translations_dir}")
set(installed_config "${PROJECT_BINARY_DIR}/installed/PXUiSchedulerWidgetsConfig.cmake")
configure_package_config_file(cmake/PXUiSchedulerWidgetsConfig.cmake.in "${installed_config}"
    INSTALL_DESTINATION "${package_dir}"
    PATH_VARS package_include_dir package_translations_dir)
set(package_translations_dir Host/Translations)
set(PXUiSchedulerWidgets_TRANSLATIONS_DIR "${PROJECT_BINARY_DIR}/${package_translations_dir}")
if(NOT PROJECT_IS_TOP_LEVEL)
    set(PXUiSchedulerWidgets_TRANSLATIONS_DIR "${PXUiSchedulerWidgets_TRANSLATIONS_DIR}" PARENT_SCOPE)
endif()
configure_package_config_file(cmake/PXUiSchedulerWidgetsConfig.cmake.in
    "${PROJECT_BINARY_DIR}/PXUiSchedulerWidgetsConfig.cmake"
    INSTALL_DESTINATION "${PROJECT_BINARY_DIR}"
    INSTALL_PREFIX "${PROJECT_BINARY_DIR}"
    PATH_VARS package_include_dir package_translations_dir)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/PXUiSchedulerWidgetsConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion)

set(shared_libraries ${libraries})
list(FILTER shared_libraries EXCLUDE REGEX "Static$")
set(static_libraries ${libraries})
list(FILTER static_libraries INCLUDE REGEX "Static$")

# In the build tree the contract is targets as well; where it is installed, the configuration file makes
# them, so that their include directory is a path there, too, which hosts hand to moc.
export(TARGETS ${shared_libraries}
        PXUiSchedulerHostData PXUiSchedulerHostInterfaces PXUiSchedulerReferenceHostPublic
    NAMESPACE Zentor:: FILE "${PROJECT_BINARY_DIR}/PXUiSchedulerWidgetsTargets.cmake")
export(TARGETS ${static_libraries}
    NAMESPACE Zentor:: FILE "${PROJECT_BINARY_DIR}/PXUiSchedulerWidgetsStaticTargets.cmake")

if(NOT SCHEDULER_INSTALL)
    return()
endif()

install(TARGETS ${shared_libraries} EXPORT PXUiSchedulerWidgetsTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        COMPONENT runtime NAMELINK_COMPONENT development)
install(TARGETS ${static_libraries} EXPORT PXUiSchedulerWidgetsStaticTargets
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development)
foreach(set IN ITEMS PXUiSchedulerWidgetsTargets PXUiSchedulerWidgetsStaticTargets)
    install(EXPORT ${set} NAMESPACE Zentor:: DESTINATION "${package_dir}" COMPONENT development)
endforeach()
install(FILES
        "${installed_config}"
        "${PROJECT_BINARY_DIR}/PXUiSchedulerWidgetsConfigVersion.cmake"
    DESTINATION "${package_dir}" COMPONENT development)

install(FILES ${panel_headers} DESTINATION "${PXUISCHEDULER_INCLUDE_DIR}" COMPONENT development)
get_property(host_headers GLOBAL PROPERTY ZENTOR_HOST_HEADERS)
foreach(header IN LISTS host_headers)
    get_filename_component(folder "${header}" DIRECTORY)
    install(FILES "${PROJECT_SOURCE_DIR}/Host/${header}"
        DESTINATION "${PXUISCHEDULER_INCLUDE_DIR}/ReferenceHost/${folder}" COMPONENT development)
endforeach()

get_property(library_translations GLOBAL PROPERTY ZENTOR_TRANSLATIONS)
install(FILES ${library_translations}
    DESTINATION "${translations_dir}" COMPONENT runtime)

# For builds without CMake. The prefix is where the file lies, so that the tree can be moved.
file(RELATIVE_PATH prefix_from_pkgconfig
    "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" prefix_from_pkgconfig "${prefix_from_pkgconfig}")
foreach(name IN ITEMS PXUiSchedulerWidgets PXUiSchedulerWidgets-ReferenceHost)
    configure_file("cmake/${name}.pc.in" "${PROJECT_BINARY_DIR}/${name}.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/${name}.pc"
        DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)
endforeach()
