# SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
# SPDX-License-Identifier: MIT

# Of its own classes the shared library exports the panel alone.
execute_process(COMMAND "${NM}" --dynamic --demangle --defined-only "${LIBRARY}"
    OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
# The first name of the library's in each line; those behind it are types of arguments.
string(REGEX MATCHALL "Zentor::PX::Scheduler::UI::[A-Za-z]+[^\n]*" lines "${symbols}")
list(TRANSFORM lines REPLACE "^(Zentor::PX::Scheduler::UI::[A-Za-z]+).*" "\\1")
list(REMOVE_DUPLICATES lines)
if(NOT lines STREQUAL "Zentor::PX::Scheduler::UI::RecordSchedulerWidget")
    message(FATAL_ERROR "The library exports: ${lines}")
endif()
