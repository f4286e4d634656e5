scheduler_add_test(tst_NotNull)
scheduler_add_test(tst_DurationClamp
    SOURCES "${PROJECT_SOURCE_DIR}/Lib/UI/SchedulerWidgets/DurationClamp.cpp")
