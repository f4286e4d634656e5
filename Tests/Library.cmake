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
