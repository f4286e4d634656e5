# Of its own classes the shared library exports the panel alone.
execute_process(COMMAND "${NM}" --dynamic --demangle --defined-only "${LIBRARY}"
    OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "Zentor::PX::Scheduler::UI::[A-Za-z]+" classes "${symbols}")
list(REMOVE_DUPLICATES classes)
if(NOT classes STREQUAL "Zentor::PX::Scheduler::UI::RecordSchedulerWidget")
    message(FATAL_ERROR "The library exports: ${classes}")
endif()
