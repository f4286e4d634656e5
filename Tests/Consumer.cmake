# The library in somebody else's build. It compiles everything anew, so once is enough.
if(NOT SCHEDULER_SANITIZE)
    add_test(NAME consumer COMMAND ${CMAKE_CTEST_COMMAND}
        --build-and-test "${CMAKE_CURRENT_SOURCE_DIR}/Consumer"
        "${CMAKE_CURRENT_BINARY_DIR}/Consumer"
        --build-generator ${CMAKE_GENERATOR}
        --build-options -DPANEL_SOURCE_DIR=${PROJECT_SOURCE_DIR}
        --test-command ${CMAKE_CTEST_COMMAND} --output-on-failure)
    set_tests_properties(consumer PROPERTIES
        TIMEOUT 600
        ENVIRONMENT QT_QPA_PLATFORM=offscreen)

    add_test(NAME exports COMMAND ${CMAKE_COMMAND}
        -DNM=${CMAKE_NM} -DLIBRARY=$<TARGET_FILE:PXUiSchedulerWidgets>
        -P "${CMAKE_CURRENT_SOURCE_DIR}/Exports.cmake")
endif()
