set(library Zentor::PXUiSchedulerWidgetsStatic Zentor::ReferenceHost)

scheduler_add_test(tst_NotNull)
scheduler_add_test(tst_DurationClamp LIBRARIES ${library})
scheduler_add_test(tst_DefaultTaskName LIBRARIES ${library})
scheduler_add_test(tst_ScheduleRecordTableWidget LIBRARIES ${library})
scheduler_add_test(tst_ClockChanges LIBRARIES ${library} SOURCES Support/FakeClock.cpp)
scheduler_add_test(tst_TimeEditTyping LIBRARIES ${library})
scheduler_add_test(tst_CreateRecordTaskWidget LIBRARIES ${library})
scheduler_add_test(tst_CreateRecordTaskWidgetTime LIBRARIES ${library}
    SOURCES Support/FakeClock.cpp)
scheduler_add_test(tst_CreateRecordTaskWidgetHostCalls LIBRARIES ${library})
scheduler_add_test(tst_CreateRecordTaskWidgetScreens LIBRARIES ${library} Qt5::GuiPrivate)
scheduler_add_test(tst_CreateRecordTaskWidgetOutputs LIBRARIES ${library} SERIAL
    LAUNCHER "${CMAKE_CURRENT_SOURCE_DIR}/on_real_x_server.sh")
scheduler_add_test(tst_RecordSchedulerWidget LIBRARIES ${library})
scheduler_add_test(tst_RecordSchedulerWidgetScheduling LIBRARIES ${library})
scheduler_add_test(tst_RecordSchedulerWidgetBoxes LIBRARIES ${library} Qt5::GuiPrivate)
scheduler_add_test(tst_RandomWalk LIBRARIES ${library} Qt5::GuiPrivate
    SOURCES RandomWalk/BoxAnswers.cpp RandomWalk/Model.cpp RandomWalk/Stage.cpp
        Support/FakeClock.cpp)
target_compile_definitions(tst_RandomWalk PRIVATE
    $<$<BOOL:${SCHEDULER_SANITIZE}>:SCHEDULER_SANITIZED>)
scheduler_add_test(tst_RecordSchedulerWidgetFlow LIBRARIES ${library}
    SOURCES Support/FakeClock.cpp)
# The same stories in windows that are really on a screen.
add_test(NAME tst_RecordSchedulerWidgetFlowOnX11
    COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/on_virtual_display.sh"
        $<TARGET_FILE:tst_RecordSchedulerWidgetFlow>)
get_test_property(tst_RecordSchedulerWidgetFlow ENVIRONMENT environment)
set_tests_properties(tst_RecordSchedulerWidgetFlowOnX11 PROPERTIES
    TIMEOUT 300
    SKIP_RETURN_CODE 77
    ENVIRONMENT "${environment}")
