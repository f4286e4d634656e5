if(NOT TARGET px-scheduler)
    return()
endif()

# The tests that run the program itself find it by this name.
function(scheduler_test_runs_program name)
    target_compile_definitions(${name} PRIVATE PX_PROGRAM="$<TARGET_FILE:px-scheduler>")
    add_dependencies(${name} px-scheduler)
endfunction()

# The tests of what listens to the desktop have a session bus of their own.
find_package(Qt5 5.15 REQUIRED COMPONENTS DBus)
set(fake_portal Support/FakePortal.cpp Support/FakePortal.h)
foreach(name tst_Appearance tst_DesktopTheme)
    scheduler_add_test(${name} LIBRARIES px-scheduler-app Qt5::DBus SOURCES ${fake_portal}
        LAUNCHER dbus-run-session
            "--config-file=${CMAKE_CURRENT_SOURCE_DIR}/Support/session.conf" --)
endforeach()
scheduler_add_test(tst_CommandLine LIBRARIES px-scheduler-app)
scheduler_test_runs_program(tst_CommandLine)
scheduler_add_test(tst_FilesPage LIBRARIES px-scheduler-app)
scheduler_add_test(tst_GeneralPage LIBRARIES px-scheduler-app)
scheduler_add_test(tst_Languages LIBRARIES px-scheduler-app)
scheduler_add_test(tst_Layout
    SOURCES Support/AppScenes.cpp Support/AppScenes.h
        Support/LayoutProblems.cpp Support/LayoutProblems.h
    LIBRARIES px-scheduler-app Qt5::GuiPrivate)
scheduler_repeat_test(tst_Layout tst_Layout_125 QT_SCALE_FACTOR=1.25)
scheduler_repeat_test(tst_Layout tst_Layout_150 QT_SCALE_FACTOR=1.5)
scheduler_repeat_test(tst_Layout tst_Layout_200 QT_SCALE_FACTOR=2)
scheduler_add_test(tst_Log LIBRARIES px-scheduler-app)
scheduler_add_test(tst_MainWindow LIBRARIES px-scheduler-app)
scheduler_add_test(tst_RestoringManyTasks LIBRARIES px-scheduler-app)
scheduler_add_test(tst_PanelAnnouncer LIBRARIES px-scheduler-app Qt5::GuiPrivate)
scheduler_add_test(tst_PanelKeyboard LIBRARIES px-scheduler-app)
scheduler_add_test(tst_PanelMouse LIBRARIES px-scheduler-app)
scheduler_add_test(tst_SampleSettings LIBRARIES px-scheduler-app)
scheduler_add_test(tst_ScreenshotTour LIBRARIES px-scheduler-app)
scheduler_test_runs_program(tst_ScreenshotTour)
scheduler_add_test(tst_StatusLine LIBRARIES px-scheduler-app)
scheduler_add_test(tst_Theme LIBRARIES px-scheduler-app)
target_compile_definitions(tst_Theme PRIVATE PX_ICON_TEMPLATES="${PROJECT_SOURCE_DIR}/App/Icons")
scheduler_add_test(tst_Untranslated
    SOURCES Support/AppScenes.cpp Support/AppScenes.h Support/WideLetters.h
    LIBRARIES px-scheduler-app Qt5::GuiPrivate)

# Needs a display of its own and the accessibility bus; says so and is skipped without them.
# Under the sanitizers the program answers too slowly for the bus.
if(NOT SCHEDULER_SANITIZE)
    add_test(NAME screen_reader
        COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/screen_reader.py" "$<TARGET_FILE:px-scheduler>")
    set_tests_properties(screen_reader PROPERTIES
        ENVIRONMENT "XDG_DATA_HOME=${CMAKE_CURRENT_BINARY_DIR}/data"
        SKIP_RETURN_CODE 77
        TIMEOUT 300)
endif()
find_package(Qt5 5.15 REQUIRED COMPONENTS LinguistTools)
scheduler_add_test(tst_Translations LIBRARIES px-scheduler-app)
target_compile_definitions(tst_Translations PRIVATE
    PX_LUPDATE="$<TARGET_FILE:Qt5::lupdate>"
    PX_SOURCES="${PROJECT_SOURCE_DIR}"
    PX_TRANSLATIONS="${PROJECT_SOURCE_DIR}/App/Translations")
