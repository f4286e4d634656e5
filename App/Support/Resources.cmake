# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

# What the program brings along: icons in the colours of each theme, texts in each language, style
# sheet, sample. Sets resource_sources, to be compiled into one target.

set(icons
    arrow-down arrow-down-disabled arrow-left arrow-right arrow-up arrow-up-disabled
    box-information box-question box-warning calendar check
    delete delete-hover files general px-scheduler question question-hover radio-off radio-off-disabled
    radio-off-hover radio-on radio-on-disabled radio-on-hover recording recordings schedule
    tray-paused tray-recording)

# Paints the icons in the colours of a theme: "@name@" in an icon becomes the colour of that name.
function(paint_icons _theme)
    set(_colors "Styles/${_theme}.colors")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${_colors}")
    file(STRINGS "${_colors}" _entries REGEX "^[A-Za-z]+: ")
    foreach(_entry IN LISTS _entries)
        string(REGEX MATCH "^([A-Za-z]+): (.+)$" _match "${_entry}")
        set(${CMAKE_MATCH_1} "${CMAKE_MATCH_2}")
    endforeach()
    foreach(_icon IN LISTS icons)
        configure_file("Icons/${_icon}.svg" "${CMAKE_CURRENT_BINARY_DIR}/Icons/${_theme}/${_icon}.svg"
            @ONLY)
        string(APPEND icon_entries "        <file>${_theme}/${_icon}.svg</file>\n")
    endforeach()
    set(icon_entries "${icon_entries}" PARENT_SCOPE)
endfunction()

paint_icons(light)
paint_icons(dark)

# The icons of the rows of the list, as pictures: for the "image" of a style sheet, Qt parses a file of
# shapes anew for each widget. Four times their size, they are sharp on every screen.
zentor_find_qt(Gui)
add_executable(render-icon "${PROJECT_SOURCE_DIR}/tools/RenderIcon.cpp")
zentor_target_defaults(render-icon)
target_link_libraries(render-icon PRIVATE Qt${QT_MAJOR_VERSION}::Gui)
foreach(_theme light dark)
    foreach(_icon delete delete-hover)
        set(_name "${CMAKE_CURRENT_BINARY_DIR}/Icons/${_theme}/${_icon}")
        add_custom_command(OUTPUT "${_name}.png"
            COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0
                $<TARGET_FILE:render-icon> "${_name}.svg" "${_name}.png" 64
            DEPENDS render-icon "${_name}.svg"
            VERBATIM)
        string(APPEND picture_entries "        <file>${_theme}/${_icon}.png</file>\n")
    endforeach()
endforeach()
configure_file(Support/icons.qrc.in Icons/icons.qrc @ONLY)

if(NOT SCHEDULER_BUILD_TRANSLATIONS)
    message(FATAL_ERROR "px-scheduler needs the translations: with SCHEDULER_BUILD_TRANSLATIONS off, "
        "SCHEDULER_BUILD_APP has to be off, too.")
endif()
zentor_add_translations(px-scheduler PREFIX translations SOURCES App Schedule)

qt_add_resources(resource_sources Support/px-scheduler.qrc "${CMAKE_CURRENT_BINARY_DIR}/Icons/icons.qrc"
    "${px-scheduler_TRANSLATIONS_RESOURCE}")
