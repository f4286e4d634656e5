if(TARGET px-scheduler AND NOT SCHEDULER_SANITIZE)
    add_test(NAME installed
        COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/installed.sh" "${PROJECT_BINARY_DIR}")
    set_tests_properties(installed PROPERTIES TIMEOUT 300)
endif()
