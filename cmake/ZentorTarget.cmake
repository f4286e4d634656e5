# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

# What every target of this project has in common.
#
#   zentor_find_qt(<component>...)                  finds these parts of the Qt that is built against
#   zentor_target_defaults(<target> [ALLOW_ASCII])  language level, warnings, visibility, sanitizers,
#                                                   coverage;
#                                                   ALLOW_ASCII: QString from and to char texts
#   zentor_library(<target> <name>)                 makes it a library for integrators: known as
#                                                   Zentor::<name> and installed; a shared one exports,
#                                                   of what is visible at all, what exports.map names
#   zentor_system_headers(<target> <library>...)    warnings in headers of these libraries are theirs,
#                                                   wherever a parent project has the libraries from
#   zentor_target_moc(<target> <header>...)         runs moc on the headers, without AUTOMOC
#   zentor_target_precompile(<target>)              spares a target with widgets, built for its own sake,
#                                                   the reading of Qt's headers in each source
#   zentor_header_view(<target> [WITH_FOLDERS] <header>...)
#                                                   an interface target with which these headers, and
#                                                   nothing else of their folder, can be included: by
#                                                   name, or by the path that is given here

include(CheckLinkerFlag)

if(QT_MAJOR_VERSION EQUAL 5)
    set(zentor_minimum_qt 5.15)
elseif(QT_MAJOR_VERSION EQUAL 6)
    set(zentor_minimum_qt 6.4)
else()
    message(FATAL_ERROR "QT_MAJOR_VERSION is ${QT_MAJOR_VERSION}; it can be 5 or 6.")
endif()

# Both at once would fail later, and say nothing of the reason.
math(EXPR zentor_other_qt "11 - ${QT_MAJOR_VERSION}")
if(TARGET Qt${zentor_other_qt}::Core AND NOT TARGET Qt${QT_MAJOR_VERSION}::Core)
    message(FATAL_ERROR "This project uses Qt ${zentor_other_qt}, but QT_MAJOR_VERSION is "
        "${QT_MAJOR_VERSION}: set it to ${zentor_other_qt} before add_subdirectory().")
endif()

# A macro: what Qt sets is wanted by who calls it.
macro(zentor_find_qt)
    find_package(Qt${QT_MAJOR_VERSION} ${zentor_minimum_qt} REQUIRED COMPONENTS ${ARGN})
endmacro()

function(zentor_target_defaults target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "ALLOW_ASCII" "" "")
    set_property(GLOBAL APPEND PROPERTY ZENTOR_TARGETS ${target})
    set_target_properties(${target} PROPERTIES
        AUTOMOC OFF
        AUTOUIC OFF
        AUTORCC OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        CXX_EXTENSIONS OFF)
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_compile_definitions(${target} PRIVATE
        QT_DEPRECATED_WARNINGS
        QT_NO_KEYWORDS)
    if(NOT arg_ALLOW_ASCII)
        target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)
    endif()
    if(PROJECT_IS_TOP_LEVEL)
        target_compile_options(${target} PRIVATE
            -Wall -Wextra -Wpedantic -Wconversion -Wshadow
            $<$<BOOL:${SCHEDULER_WARNINGS_AS_ERRORS}>:-Werror>)
    else()
        # The flags of the parent project are made for its own sources.
        target_compile_options(${target} PRIVATE -w)
    endif()
    if(SCHEDULER_SANITIZE)
        set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all
            -fno-omit-frame-pointer)
        target_compile_options(${target} PRIVATE ${sanitizers})
        target_link_options(${target} PUBLIC ${sanitizers})
    endif()
    if(SCHEDULER_COVERAGE)
        target_compile_options(${target} PRIVATE --coverage -fprofile-update=atomic)
        target_link_options(${target} PUBLIC --coverage)
    endif()
endfunction()

function(zentor_system_headers target)
    foreach(library IN LISTS ARGN)
        target_include_directories(${target} SYSTEM PRIVATE
            $<TARGET_PROPERTY:${library},INTERFACE_INCLUDE_DIRECTORIES>)
    endforeach()
endfunction()

# A static library has the file name of its shared twin.
function(zentor_library target name)
    zentor_target_defaults(${target})
    add_library(Zentor::${name} ALIAS ${target})
    string(REGEX REPLACE "Static$" "" file_name "${target}")
    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${name}
        OUTPUT_NAME ${file_name}
        INSTALL_RPATH "$ORIGIN;${CMAKE_INSTALL_RPATH}"
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PXUISCHEDULER_SOVERSION})
    set_property(GLOBAL APPEND PROPERTY ZENTOR_LIBRARIES ${target})

    set(map "${CMAKE_CURRENT_SOURCE_DIR}/exports.map")
    check_linker_flag(CXX "LINKER:--version-script=${map}" ZENTOR_HAS_VERSION_SCRIPTS)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "SHARED_LIBRARY" AND ZENTOR_HAS_VERSION_SCRIPTS)
        target_link_options(${target} PRIVATE "LINKER:--version-script=${map}")
        set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${map}")
    endif()
endfunction()

# CMake 3.25 drops AUTOMOC's output of an object library that is reached through
# $<TARGET_OBJECTS>, so the libraries name their moc output as ordinary sources.
function(zentor_target_moc target)
    qt_wrap_cpp(moc_sources ${ARGN})
    target_sources(${target} PRIVATE ${moc_sources})
endfunction()

# What nearly all include. Much more costs more to load than it spares: <QtWidgets> takes 0.8 s.
set(zentor_precompiled_headers
    <functional> <memory> <vector>
    <QApplication> <QComboBox> <QLabel> <QLineEdit> <QMessageBox> <QPushButton> <QRadioButton>
    <QScrollArea> <QTimeEdit> <QToolButton> <QVBoxLayout>)

# One file serves all of them. Who compiles it defines nothing of its own: what is defined there has to
# be defined by all who use it.
function(zentor_target_precompile target)
    if(NOT PROJECT_IS_TOP_LEVEL)
        return()
    endif()
    if(NOT TARGET pxuischeduler-precompiled)
        file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/precompiled.cpp" CONTENT "")
        add_library(pxuischeduler-precompiled OBJECT "${PROJECT_BINARY_DIR}/precompiled.cpp")
        zentor_target_defaults(pxuischeduler-precompiled)
        target_link_libraries(pxuischeduler-precompiled PRIVATE Qt${QT_MAJOR_VERSION}::Widgets)
        target_precompile_headers(pxuischeduler-precompiled PRIVATE ${zentor_precompiled_headers})
    endif()
    target_precompile_headers(${target} REUSE_FROM pxuischeduler-precompiled)
endfunction()

# A layer that may use one header of another layer's folder links the view instead of the folder, so
# that the compiler refuses the others. Links, as moc reads what lies there.
function(zentor_header_view target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "WITH_FOLDERS" "" "")
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/include/${target}")
    file(REMOVE_RECURSE "${folder}")
    foreach(name IN LISTS arg_UNPARSED_ARGUMENTS)
        set(header "${name}")
        if(NOT arg_WITH_FOLDERS)
            get_filename_component(name "${header}" NAME)
        endif()
        get_filename_component(header_folder "${folder}/${name}" DIRECTORY)
        file(MAKE_DIRECTORY "${header_folder}")
        file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}/${header}" "${folder}/${name}"
            SYMBOLIC COPY_ON_ERROR)
    endforeach()
    add_library(${target} INTERFACE)
    target_include_directories(${target} INTERFACE "${folder}")
endfunction()
