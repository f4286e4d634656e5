# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

# Texts in each language. Translators work on the .ts files with Qt Linguist.
#
#   zentor_add_translations(<name> PREFIX <prefix> SOURCES <folder>...)
#
# compiles Translations/<name>_<language>.ts of the current folder. Sets <name>_TRANSLATIONS, the .qm
# files that are built, and <name>_TRANSLATIONS_RESOURCE, a .qrc file of Qt's that holds them under
# ":/<prefix>" and is initialised by the name <name>_translations.
#
# The target update-translations takes the texts of the sources, folders of the project, over into the
# .ts files. Only on demand, as it changes the source tree.

# As QLocale names them.
set(zentor_languages en de fr es it pt_BR pl ru tr ja ko zh_CN ar he)

function(zentor_add_translations name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "PREFIX" "SOURCES")
    find_package(Qt${QT_MAJOR_VERSION} ${zentor_minimum_qt} QUIET OPTIONAL_COMPONENTS LinguistTools)
    if(NOT TARGET Qt${QT_MAJOR_VERSION}::lrelease)
        message(FATAL_ERROR "To compile the translations, Qt's LinguistTools are needed (Debian: "
            "qttools5-dev and qttools5-dev-tools for Qt 5; qt6-tools-dev, qt6-tools-dev-tools and "
            "qt6-l10n-tools for Qt 6). The libraries can be built without: "
            "-DSCHEDULER_BUILD_TRANSLATIONS=OFF.")
    endif()

    set(folder "${CMAKE_CURRENT_BINARY_DIR}/Translations")
    list(TRANSFORM zentor_languages REPLACE "(.+)" "${CMAKE_CURRENT_SOURCE_DIR}/Translations/${name}_\\1.ts"
        OUTPUT_VARIABLE sources)
    file(MAKE_DIRECTORY "${folder}")
    set_source_files_properties(${sources} PROPERTIES OUTPUT_LOCATION "${folder}")
    # It adds to what the variable holds in any scope.
    set(translations "")
    qt_add_translation(translations ${sources})
    foreach(translation IN LISTS translations)
        get_filename_component(file "${translation}" NAME)
        string(APPEND entries "        <file>${file}</file>\n")
    endforeach()
    set(resource "${folder}/${name}_translations.qrc")
    file(CONFIGURE OUTPUT "${resource}" @ONLY CONTENT
        "<RCC>\n    <qresource prefix=\"/@arg_PREFIX@\">\n@entries@    </qresource>\n</RCC>\n")

    if(PROJECT_IS_TOP_LEVEL)
        if(NOT TARGET update-translations)
            add_custom_target(update-translations)
        endif()
        add_custom_target(update-translations-${name}
            COMMAND Qt${QT_MAJOR_VERSION}::lupdate -no-obsolete -locations none ${arg_SOURCES} -ts ${sources}
            WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
            VERBATIM)
        add_dependencies(update-translations update-translations-${name})
    endif()
    set(${name}_TRANSLATIONS "${translations}" PARENT_SCOPE)
    set(${name}_TRANSLATIONS_RESOURCE "${resource}" PARENT_SCOPE)
endfunction()
